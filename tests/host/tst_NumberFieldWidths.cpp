#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>

#include <property/PropertyUI.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>
#include <QVector2D>
#include <QVector3D>

#include <utility>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

class tst_NumberFieldWidths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void longNumbersFit();
    void shortNumbersHaveThePanelsWidth();
    void fieldsOfAPageAreEquallyWide();
    void plainPanelStaysAsItIs();
    void everyNumberOfARowFits();
    void changedSuffixFits();
    void largerFontFits();
    void replacedPanelIsFitted();

private:
    PropertyRow addGain(double least, double most)
    {
        return m_list.number(QStringLiteral("gain"), QStringLiteral("Gain")).range(least, most);
    }
    QDoubleSpinBox *show();
    static int missing(const QDoubleSpinBox &box);

    PropertyList m_list;
    PropertyStore m_store;
    std::unique_ptr<PropertyPanelView> m_view;
};

void tst_NumberFieldWidths::init()
{
    m_view = std::make_unique<PropertyPanelView>();
    m_list = PropertyList();
}

QDoubleSpinBox *tst_NumberFieldWidths::show()
{
    m_store.reset(m_list);
    m_view->setProperties(m_list, &m_store);
    m_view->resize(500, 300);
    m_view->show();
    return m_view->findChild<QDoubleSpinBox *>();
}

/// How many pixels the widest number has too few, when shown; negative when it fits.
int tst_NumberFieldWidths::missing(const QDoubleSpinBox &box)
{
    const QString text =
        box.prefix() + box.locale().toString(box.minimum(), 'f', box.decimals()) + box.suffix();
    const auto *const edit = box.findChild<QLineEdit *>();
    return box.fontMetrics().horizontalAdvance(text) - edit->width();
}

void tst_NumberFieldWidths::longNumbersFit()
{
    addGain(-1000, 1000).suffix(QStringLiteral(" dB"));

    QVERIFY(missing(*show()) < 0);
}

void tst_NumberFieldWidths::shortNumbersHaveThePanelsWidth()
{
    addGain(0, 1);
    QFont small;
    small.setPixelSize(8);
    m_view->setFont(small);

    const auto *const box = show();

    QTRY_COMPARE(box->width(), 70);
}

void tst_NumberFieldWidths::fieldsOfAPageAreEquallyWide()
{
    addGain(-1000, 1000).suffix(QStringLiteral(" dB"));
    m_list.number(QStringLiteral("mix"), QStringLiteral("Mix")).range(0, 1);
    m_list.vec2(QStringLiteral("aim"), QStringLiteral("Aim"))
        .range(QVector2D(0, 0), QVector2D(1, 1))
        .showSliders();
    show();

    const auto boxes = m_view->findChildren<QDoubleSpinBox *>();
    QCOMPARE(boxes.size(), 4);
    QCOMPARE(boxes.at(0)->width(), boxes.at(1)->width());
    QVERIFY(boxes.at(2)->width() < boxes.at(1)->width());
}

void tst_NumberFieldWidths::plainPanelStaysAsItIs()
{
    addGain(-1000, 1000).suffix(QStringLiteral(" dB"));

    const PropertyEditorPanel panel(m_list.properties(), nullptr, nullptr);

    QCOMPARE(panel.findChild<QDoubleSpinBox *>()->minimumWidth(), 70);
}

void tst_NumberFieldWidths::everyNumberOfARowFits()
{
    m_list.vec3(QStringLiteral("aim"), QStringLiteral("Aim"))
        .range(QVector3D(-1, -20000, -30000), QVector3D(1, 20000, 30000))
        .showSliders();
    show();

    const auto boxes = m_view->findChildren<QDoubleSpinBox *>();
    QCOMPARE(boxes.size(), 3);
    for (const QDoubleSpinBox *box : boxes)
        QVERIFY(missing(*box) < 0);
}

void tst_NumberFieldWidths::changedSuffixFits()
{
    addGain(-1000, 1000);
    QDoubleSpinBox *const box = show();
    box->setSuffix(QStringLiteral(" per minute"));

    m_view->updateProperty(m_list.properties().first());

    QTRY_VERIFY(missing(*box) < 0);
}

void tst_NumberFieldWidths::largerFontFits()
{
    addGain(-1000, 1000);
    const QDoubleSpinBox *const box = show();
    const int height = box->height();
    QFont font = m_view->font();
    font.setPixelSize(40);

    m_view->setFont(font);

    QTRY_VERIFY(box->height() > height);
    QTRY_VERIFY(missing(*box) < 0);
}

void tst_NumberFieldWidths::replacedPanelIsFitted()
{
    addGain(0, 1);
    show();
    const PropertyList before = std::exchange(m_list, PropertyList());
    addGain(-1000, 1000).suffix(QStringLiteral(" dB"));

    QVERIFY(missing(*show()) < 0);
}

QTEST_MAIN(tst_NumberFieldWidths)
#include "tst_NumberFieldWidths.moc"
