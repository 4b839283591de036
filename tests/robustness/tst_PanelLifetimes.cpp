#include <property/PropertyUI.h>

#include "support/HeapUse.h"
#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"
#include "support/Registry.h"

#include <QCoreApplication>
#include <QPixmapCache>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kSlowness = 50; // the leak check at the end of the program tells the same
#else
constexpr int kSlowness = 1;
#endif

/// All types, those that mark a place in an order that makes sense.
QStringList types()
{
    const QStringList beginnings = {kPropertyTypeBeginTabGroup, kPropertyTypeTab,
                                    kPropertyTypeBeginGroup};
    const QStringList ends = {kPropertyTypeEndGroup, kPropertyTypeEndTabGroup};
    QStringList between;
    for (const LibraryEditor &editor : libraryEditors()) {
        if (!beginnings.contains(editor.type) && !ends.contains(editor.type))
            between.append(editor.type);
    }
    return beginnings + between + ends;
}

// Panels after which Qt has cached what it caches.
constexpr int kWarmUp = 1000;

// For what the whole run may add: not a byte for each panel.
constexpr qint64 kBound = 4096;

} // namespace

/// Panels of all types come and go, and nothing of them stays.
class tst_PanelLifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void heapStaysLevel_data();
    void heapStaysLevel();
    void heapStaysLevelWhenShown();

private:
    void live(bool shown);
    void liveOften(int lives, bool shown);

    PropertySet m_set;
    RecordingDelegate m_delegate;
    qint64 m_heapAtFirst = 0;
};

void tst_PanelLifetimes::initTestCase()
{
    for (const QString &type : types())
        m_set.add(type, type).setRange(0, 10);
    liveOften(kWarmUp, false);
    m_heapAtFirst = heapInUse();
}

/// Ten thousand in all, whose growth counts together.
void tst_PanelLifetimes::heapStaysLevel_data()
{
    QTest::addColumn<int>("lives");
    for (int thousand = 1; thousand <= 10; ++thousand)
        QTest::addRow("%d000 panels", thousand) << 1000;
}

void tst_PanelLifetimes::heapStaysLevel()
{
    QFETCH(int, lives);

    liveOften(lives, false);

    const qint64 growth = heapInUse() - m_heapAtFirst;
    QVERIFY2(growth <= kBound, qPrintable(QStringLiteral("%1 bytes").arg(growth)));
}

void tst_PanelLifetimes::heapStaysLevelWhenShown()
{
    liveOften(kWarmUp, true);
    const qint64 before = heapInUse();

    liveOften(kWarmUp, true);

    const qint64 growth = heapInUse() - before;
    QVERIFY2(growth <= kBound, qPrintable(QStringLiteral("%1 bytes").arg(growth)));
}

void tst_PanelLifetimes::liveOften(int lives, bool shown)
{
    for (int i = 0; i < lives / kSlowness; ++i)
        live(shown);
}

void tst_PanelLifetimes::live(bool shown)
{
    {
        PropertyEditorPanel panel(m_set.list(), &m_delegate, nullptr);
        panel.updateUI();
        QVector<PropertyEditor *> editors;
        panel.getEditors(editors, QString());
        QCOMPARE(editors.size(), m_set.list().size());
        if (shown) {
            panel.show();
            QCoreApplication::processEvents();
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents(); // which alone shortens Qt's list of them
    m_delegate = RecordingDelegate();
    QPixmapCache::clear();
}

QTEST_MAIN(tst_PanelLifetimes)
#include "tst_PanelLifetimes.moc"
