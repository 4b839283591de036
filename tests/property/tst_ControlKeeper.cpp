#include <property/PropertyUI.h>

#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"

#include <QApplication>
#include <QPointer>
#include <QSlider>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

/// An application of the program's name, for as long as it is needed.
class Application
{
private:
    QByteArray m_name = QByteArrayLiteral("tst_ControlKeeper");
    char *m_arguments[2] = {m_name.data(), nullptr};
    int m_count = 1;
    QApplication m_application{m_count, m_arguments};
};

/// A panel whose host deletes it when its slider moves; returns the slider, which is kept.
QPointer<QSlider> sliderOfDeletedPanel()
{
    PropertySet properties;
    properties.add(QStringLiteral("number"), kPropertyTypeInteger).setRange(0, 10);
    RecordingDelegate delegate;
    auto *const panel = new PropertyEditorPanel(properties.list(), &delegate, nullptr);
    delegate.onSetValue = [panel, &delegate] {
        delegate.onSetValue = nullptr;
        delete panel;
    };
    const QPointer<QSlider> slider = panel->findChild<QSlider *>();
    slider->setValue(3);
    return slider;
}

} // namespace

/// What is kept from deletion in a callback that no event loop was behind.
class tst_ControlKeeper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlsGoWithTheApplication_data();
    void controlsGoWithTheApplication();
    void controlsGoInTheEventLoop();
};

void tst_ControlKeeper::controlsGoWithTheApplication_data()
{
    QTest::addColumn<int>("panels");

    QTest::newRow("of one panel") << 1;
    QTest::newRow("of three panels") << 3;
}

// Twice: the second application is told of them like the first.
void tst_ControlKeeper::controlsGoWithTheApplication()
{
    QFETCH(int, panels);

    for (int run = 0; run < 2; ++run) {
        QVector<QPointer<QSlider>> sliders;
        {
            const Application application;
            for (int i = 0; i < panels; ++i)
                sliders.append(sliderOfDeletedPanel());
            for (const auto &slider : sliders)
                QVERIFY(slider);
        }
        for (const auto &slider : sliders)
            QVERIFY(!slider);
    }
}

void tst_ControlKeeper::controlsGoInTheEventLoop()
{
    const Application application;
    const QPointer<QSlider> slider = sliderOfDeletedPanel();
    QVERIFY(slider);

    QTRY_VERIFY(!slider);
}

QTEST_APPLESS_MAIN(tst_ControlKeeper)
#include "tst_ControlKeeper.moc"
