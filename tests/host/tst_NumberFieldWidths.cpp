#include "support/Events.h"
#include "support/SliderDrag.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>

#include <property/PropertyUI.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QVector2D>
#include <QVector3D>

#include <algorithm>
#include <utility>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::settleEvents;

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
    void boundsThatRulesMoveFit();
    void wholeNumbersWhoseBoundsMoveFit();
    void boundsThatMoveBackLeaveTheWidth();
    void nothingMovesWhileASliderIsDragged();
    void nothingMovesWhileANumberIsTyped();
    void fieldsWithTheFocusFollow();

private:
    void addFollowing();
    void setLimit(double limit);
    PropertyRow addGain(double least, double most)
    {
        return m_list.number(QStringLiteral("gain"), QStringLiteral("Gain")).range(least, most);
    }
    QDoubleSpinBox *show();
    static int missing(const QDoubleSpinBox &box);

    PropertyList m_list;
    PropertyStore m_store;
    std::unique_ptr<PropertyPanelView> m_view;
    QDoubleSpinBox *m_limit = nullptr; // the first field that is shown
    QDoubleSpinBox *m_gain = nullptr;  // the next one
};

namespace {

constexpr double kHigh = 876543;

} // namespace

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
    settleEvents();
    const auto boxes = m_view->findChildren<QDoubleSpinBox *>();
    m_limit = boxes.value(0);
    m_gain = boxes.value(1);
    return m_limit;
}

/// A number that goes as far as the one before says. Both fields are equally wide, wider than the limit
/// needs.
void tst_NumberFieldWidths::addFollowing()
{
    m_list.number(QStringLiteral("limit"), QStringLiteral("Limit"))
        .range(0, 900000)
        .decimals(0)
        .defaultValue(5);
    m_list.number(QStringLiteral("gain"), QStringLiteral("Gain"))
        .range(0, 10)
        .suffix(QStringLiteral(" millimetres"))
        .maximumFollows(QStringLiteral("limit"))
        .defaultValue(5);
}

/// By the host.
void tst_NumberFieldWidths::setLimit(double limit)
{
    m_store.setValue(m_list.properties().first(), limit, PropertyStore::NewChange);
    m_view->rules()->update();
    m_view->updateUI();
}

/// How many pixels the widest number has too few, when shown; negative when it fits.
int tst_NumberFieldWidths::missing(const QDoubleSpinBox &box)
{
    const auto widthOf = [&box](double number) {
        const QString text = box.locale().toString(number, 'f', box.decimals());
        return box.fontMetrics().horizontalAdvance(box.prefix() + text + box.suffix());
    };
    const auto *const edit = box.findChild<QLineEdit *>();
    return std::max(widthOf(box.minimum()), widthOf(box.maximum())) - edit->width();
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
    m_list.integer(QStringLiteral("count"), QStringLiteral("Count")).range(0, 9);
    m_list.vec2(QStringLiteral("aim"), QStringLiteral("Aim"))
        .range(QVector2D(0, 0), QVector2D(1, 1))
        .showSliders();
    show();

    const auto boxes = m_view->findChildren<QDoubleSpinBox *>();
    QCOMPARE(boxes.size(), 4);
    QCOMPARE(boxes.at(0)->width(), boxes.at(1)->width());
    QCOMPARE(m_view->findChild<QSpinBox *>()->width(), boxes.at(0)->width());
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

void tst_NumberFieldWidths::boundsThatRulesMoveFit()
{
    addFollowing();
    show();
    QVERIFY(missing(*m_gain) < 0);

    setLimit(kHigh);

    QTRY_COMPARE(m_gain->maximum(), kHigh);
    QTRY_VERIFY(missing(*m_gain) < 0);
}

void tst_NumberFieldWidths::wholeNumbersWhoseBoundsMoveFit()
{
    m_list.integer(QStringLiteral("limit"), QStringLiteral("Limit")).range(0, 90).defaultValue(1);
    m_list.integer(QStringLiteral("count"), QStringLiteral("Count"))
        .range(0, 10)
        .maximumFollows(QStringLiteral("limit * 10000"));
    show();
    const auto boxes = m_view->findChildren<QSpinBox *>();
    const int width = boxes.at(1)->width();

    setLimit(80);

    QTRY_COMPARE(boxes.at(1)->maximum(), 800000);
    QTRY_VERIFY(boxes.at(1)->width() > width);
    QVERIFY(boxes.at(1)->width() >= boxes.at(1)->sizeHint().width());
    QTRY_COMPARE(boxes.at(0)->width(), boxes.at(1)->width());
}

void tst_NumberFieldWidths::boundsThatMoveBackLeaveTheWidth()
{
    addFollowing();
    show();
    setLimit(kHigh);
    QTRY_VERIFY(missing(*m_gain) < 0);
    const int width = m_gain->width();

    setLimit(5);

    QTRY_COMPARE(m_gain->maximum(), 5.0);
    settleEvents();
    QCOMPARE(m_gain->width(), width);
    m_view->updateProperty(m_list.properties().last()); // by the host, who may mean it
    QTRY_VERIFY(m_gain->width() < width);
}

void tst_NumberFieldWidths::nothingMovesWhileASliderIsDragged()
{
    addFollowing();
    show();
    const int width = m_gain->width();
    auto *const slider = m_view->findChild<QSlider *>();
    const int length = slider->width();
    SliderDrag drag(slider);

    drag.press();
    for (int i = 0; i < 4; ++i) {
        drag.moveBy(length / 4);
        settleEvents();
    }

    QCOMPARE(m_gain->maximum(), 900000.0);
    QCOMPARE(m_gain->width(), width);
    QCOMPARE(slider->width(), length);
    drag.release();
    QTRY_VERIFY(missing(*m_gain) < 0);
}

void tst_NumberFieldWidths::nothingMovesWhileANumberIsTyped()
{
    addFollowing();
    show();
    const int width = m_gain->width();

    QTest::mouseClick(m_limit->findChild<QLineEdit *>(), Qt::LeftButton);
    m_limit->selectAll();
    for (const char key : {'8', '7', '6', '5', '4', '3'}) {
        QTest::keyClick(m_limit, key);
        settleEvents();
        QCOMPARE(m_gain->width(), width);
    }

    QCOMPARE(m_gain->maximum(), kHigh);
    QTest::keyClick(m_limit, Qt::Key_Return);
    QTRY_VERIFY(missing(*m_gain) < 0);
}

void tst_NumberFieldWidths::fieldsWithTheFocusFollow()
{
    addFollowing();
    show();
    m_gain->setFocus();
    QTRY_VERIFY(m_gain->hasFocus());

    setLimit(kHigh);

    QTRY_VERIFY(missing(*m_gain) < 0);
}

QTEST_MAIN(tst_NumberFieldWidths)
#include "tst_NumberFieldWidths.moc"
