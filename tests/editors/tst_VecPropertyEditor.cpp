#include "property/editors/VecPropertyEditor.h"

#include "core/DisclosureButton.h"
#include "property/DoubleSpinBox.h"

#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QColor>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::UI::DisclosureButton;

namespace {

constexpr int kSliderLimit = 1000000000;
const QString kVecTypes[] = {kPropertyTypeVec2, kPropertyTypeVec3, kPropertyTypeVec4};

/// A vector property of 2 to 4 components, its editor and the controls by component.
struct Subject
{
    explicit Subject(int components, const QVariant &minimum = 0.0F,
                     const QVariant &maximum = 10.0F)
        : count(components)
        , property(QStringLiteral("v"), QStringLiteral("V"), kVecTypes[components - 2])
    {
        property.setRange(minimum, maximum);
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    Subject &withSliders(bool show = true)
    {
        property.setHint(kPropertyHintShowSliders, show);
        return *this;
    }

    Subject &withToggle(bool show = true)
    {
        property.setHint(kPropertyHintShowMultipleCheck, show);
        return *this;
    }

    Subject &build()
    {
        makeEditor();
        widget.reset(editor->widget(nullptr));
        widget->resize(400, 100);
        boxes = widget->findChildren<QDoubleSpinBox *>();
        sliders = widget->findChildren<QSlider *>();
        toggle = widget->findChild<DisclosureButton *>();
        return *this;
    }

    void makeEditor()
    {
        if (count == 2)
            editor = std::make_unique<Vec2PropertyEditor>(&property);
        else if (count == 3)
            editor = std::make_unique<Vec3PropertyEditor>(&property);
        else
            editor = std::make_unique<Vec4PropertyEditor>(&property);
    }

    QVector<double> numbers() const
    {
        QVector<double> result;
        for (const QDoubleSpinBox *box : boxes)
            result.append(box->value());
        return result;
    }

    QVector<int> positions() const
    {
        QVector<int> result;
        for (const QSlider *slider : sliders)
            result.append(slider->value());
        return result;
    }

    int shownComponents() const
    {
        int shown = 0;
        for (const QDoubleSpinBox *box : boxes)
            shown += box->isVisibleTo(widget.get());
        return shown;
    }

    int count;
    Property property;
    std::unique_ptr<VecPropertyEditor> editor;
    std::unique_ptr<QWidget> widget;
    QList<QDoubleSpinBox *> boxes;
    QList<QSlider *> sliders;
    DisclosureButton *toggle = nullptr;
};

/// The vector of so many components that starts with these.
QVariant vectorOf(int count, float x, float y, float z = 0, float w = 0)
{
    if (count == 2)
        return QVector2D(x, y);
    if (count == 3)
        return QVector3D(x, y, z);
    return QVector4D(x, y, z, w);
}

QVector<double> firstOf(int count, QVector<double> numbers)
{
    numbers.resize(count);
    return numbers;
}

void addCounts()
{
    QTest::addColumn<int>("count");
    QTest::newRow("vec2") << 2;
    QTest::newRow("vec3") << 3;
    QTest::newRow("vec4") << 4;
}

const QStringList kOneValue{QStringLiteral("value")};

} // namespace

class tst_VecPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObjects();
    void fieldsStandInARow_data() { addCounts(); }
    void fieldsStandInARow();
    void toggleComesLastInARow();
    void slidersMakeAGrid_data();
    void slidersMakeAGrid();
    void controlsHaveTheirRanges_data() { addCounts(); }
    void controlsHaveTheirRanges();
    void rangesByComponent_data();
    void rangesByComponent();
    void hardMaximumIsForTyping();
    void compactOnlyWithSliders();
    void widgetIsBuiltOnce();
    void startsUniformWithToggle_data() { addCounts(); }
    void startsUniformWithToggle();
    void toggleLooksRound();
    void valueOfAllComponents_data() { addCounts(); }
    void valueOfAllComponents();
    void unequalComponentsSwitchToSeparate();
    void equalComponentsLeaveTheMode();
    void checkingTheToggleShowsAll();
    void uncheckingTheToggleCopiesTheFirst_data();
    void uncheckingTheToggleCopiesTheFirst();
    void setMultipleWithoutToggle();
    void readsVariants_data();
    void readsVariants();
    void fourthComponentIsAlwaysZero();
    void setValueMovesSlidersInSinglePrecision();
    void setValueIsSilent_data();
    void setValueIsSilent();
    void sliderMovesItsField();
    void sliderCopiesAllSliders();
    void fieldDoesNotMoveItsSlider();
    void dragIsOneRun();
    void typingIsOneRun();
    void wheelMovesSlidersAlone();
    void isHarmlessBeforeItsWidget_data() { addCounts(); }
    void isHarmlessBeforeItsWidget();
    void otherCountsAreTakenAsTheNearest();
    void wrongRangesAreBuilt_data();
    void wrongRangesAreBuilt();
    void revertsToDefault();
    void editorDeletedInTheCallback();
};

void tst_VecPropertyEditor::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_VecPropertyEditor::metaObjects()
{
    const QMetaObject &meta = VecPropertyEditor::staticMetaObject;
    Property property(QStringLiteral("v"), QString(), kPropertyTypeVec3);
    const std::unique_ptr<PropertyEditor> editor(Vec3PropertyEditor::Factory(&property));

    QCOMPARE(meta.className(), "Tessark::PropertyUI::VecPropertyEditor");
    QVERIFY(meta.indexOfSlot("setMultiple(bool)") >= 0);
    QVERIFY(meta.indexOfSlot("sliderChanged(int)") >= 0);
    QCOMPARE(editor->metaObject(), &meta); // the concrete classes have none of their own
}

void tst_VecPropertyEditor::fieldsStandInARow()
{
    QFETCH(int, count);
    Subject subject(count);
    subject.build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());

    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), count);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), subject.boxes.at(i));
        QCOMPARE(layout->stretch(i), 0);
        QVERIFY(dynamic_cast<DoubleSpinBox *>(subject.boxes.at(i)));
    }
    QVERIFY(subject.sliders.isEmpty());
    QVERIFY(!subject.toggle);
    QCOMPARE(subject.shownComponents(), count);
    QVERIFY(!subject.widget->parent());
}

void tst_VecPropertyEditor::toggleComesLastInARow()
{
    Subject subject(3);
    subject.withToggle().build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());

    QVERIFY(layout);
    QCOMPARE(layout->count(), 4);
    QCOMPARE(layout->itemAt(3)->widget(), subject.toggle);
}

void tst_VecPropertyEditor::slidersMakeAGrid_data()
{
    QTest::addColumn<bool>("toggle");
    QTest::newRow("without toggle") << false;
    QTest::newRow("with toggle") << true;
}

void tst_VecPropertyEditor::slidersMakeAGrid()
{
    QFETCH(bool, toggle);
    Subject subject(3);
    subject.withSliders().withToggle(toggle).build();
    const auto *const grid = qobject_cast<QGridLayout *>(subject.widget->layout());
    const int sliderColumn = toggle ? 1 : 0;

    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(int(subject.sliders.size()), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(grid->itemAtPosition(i, sliderColumn)->widget(), subject.sliders.at(i));
        QCOMPARE(grid->itemAtPosition(i, sliderColumn + 1)->widget(), subject.boxes.at(i));
        QCOMPARE(subject.sliders.at(i)->orientation(), Qt::Horizontal);
    }
    QCOMPARE(subject.toggle != nullptr, toggle);
    if (toggle) {
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), subject.toggle);
        QVERIFY(!grid->itemAtPosition(1, 0));
    }
}

void tst_VecPropertyEditor::controlsHaveTheirRanges()
{
    QFETCH(int, count);
    Subject subject(count, -1.0F, 3.0F);
    subject.withSliders().build();
    const QSlider fresh;

    for (const QDoubleSpinBox *box : subject.boxes) {
        QCOMPARE(box->minimum(), -1.0);
        QCOMPARE(box->maximum(), 3.0);
        QCOMPARE(box->singleStep(), 0.04);
        QCOMPARE(box->decimals(), 4);
    }
    for (const QSlider *slider : subject.sliders) {
        QCOMPARE(slider->minimum(), -1000);
        QCOMPARE(slider->maximum(), 3000);
        QCOMPARE(slider->singleStep(), fresh.singleStep());
        QCOMPARE(slider->pageStep(), fresh.pageStep());
    }
}

void tst_VecPropertyEditor::rangesByComponent_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<QVector<double>>("maxima");

    using Numbers = QVector<double>;
    QTest::newRow("float") << 3 << QVariant(2.0F) << Numbers{2, 2, 2};
    QTest::newRow("text of one") << 3 << QVariant(QStringLiteral("2")) << Numbers{2, 2, 2};
    QTest::newRow("text of two") << 2 << QVariant(QStringLiteral("1 2")) << Numbers{1, 2};
    QTest::newRow("text of three") << 3 << QVariant(QStringLiteral("1 2 3")) << Numbers{1, 2, 3};
    QTest::newRow("text of three for four")
        << 4 << QVariant(QStringLiteral("1 2 3")) << Numbers{1, 2, 3, 0};
    QTest::newRow("text of four") << 4 << QVariant(QStringLiteral("1 2 3 4"))
                                  << Numbers{1, 2, 3, 4};
    QTest::newRow("text of five") << 4 << QVariant(QStringLiteral("1 2 3 4 5"))
                                  << Numbers{0, 0, 0, 0};
    QTest::newRow("vector of two") << 3 << QVariant(QVector2D(1, 2)) << Numbers{1, 2, 0};
    QTest::newRow("vector of three") << 4 << QVariant(QVector3D(1, 2, 3)) << Numbers{1, 2, 3, 0};
    QTest::newRow("vector of four") << 2 << QVariant(QVector4D(1, 2, 3, 4)) << Numbers{1, 2};
    QTest::newRow("colour") << 4 << QVariant(QColor(255, 0, 255, 255)) << Numbers{1, 0, 1, 1};
    QTest::newRow("a double is no float") << 3 << QVariant(2.0) << Numbers{0, 0, 0};
    QTest::newRow("null") << 2 << QVariant() << Numbers{0, 0};
}

void tst_VecPropertyEditor::rangesByComponent()
{
    QFETCH(int, count);
    QFETCH(QVariant, maximum);
    QFETCH(QVector<double>, maxima);
    Subject subject(count, 0.0F, maximum);
    subject.withSliders().build();

    for (int i = 0; i < count; ++i) {
        QCOMPARE(subject.boxes.at(i)->maximum(), maxima.at(i));
        QCOMPARE(subject.boxes.at(i)->minimum(), 0.0);
        QCOMPARE(subject.sliders.at(i)->maximum(), int(maxima.at(i) * 1000));
    }
}

void tst_VecPropertyEditor::hardMaximumIsForTyping()
{
    Subject subject(2, 0.0F, 1.0F);
    subject.property.setHardMaxValue(QVector2D(5, 50));
    subject.withSliders().build();

    QCOMPARE(subject.boxes.at(0)->maximum(), 5.0);
    QCOMPARE(subject.boxes.at(1)->maximum(), 50.0);
    QCOMPARE(subject.sliders.at(1)->maximum(), 1000);
    // The step comes from the slider's range.
    QCOMPARE(subject.boxes.at(1)->singleStep(), 0.01);
}

void tst_VecPropertyEditor::compactOnlyWithSliders()
{
    Subject plain(2);
    plain.build();
    Subject slid(2);
    slid.withSliders().build();

    QVERIFY(plain.boxes.at(0)->maximumWidth() > plain.boxes.at(0)->minimumWidth());
    QCOMPARE(slid.boxes.at(0)->minimumSize(), QSize(70, slid.boxes.at(0)->sizeHint().height()));
    QCOMPARE(slid.boxes.at(0)->maximumSize(), slid.boxes.at(0)->minimumSize());
}

void tst_VecPropertyEditor::widgetIsBuiltOnce()
{
    Subject subject(3);
    subject.build();

    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QCOMPARE(int(subject.widget->findChildren<QDoubleSpinBox *>().size()), 3);
}

void tst_VecPropertyEditor::startsUniformWithToggle()
{
    QFETCH(int, count);
    Subject subject(count);
    subject.withToggle().build();

    QVERIFY(subject.toggle->isCheckable());
    QVERIFY(!subject.toggle->isChecked());
    QCOMPARE(subject.shownComponents(), 1);
    subject.boxes.at(0)->setValue(5);
    QCOMPARE(subject.editor->value(), vectorOf(count, 5, 5, 5, 5));
}

void tst_VecPropertyEditor::toggleLooksRound()
{
    Subject subject(2);
    subject.withToggle().build();

    QCOMPARE(subject.toggle->property("group").toString(), QStringLiteral("round"));
    QVERIFY(subject.toggle->isFlat());
}

void tst_VecPropertyEditor::valueOfAllComponents()
{
    QFETCH(int, count);
    Subject subject(count);
    subject.build();
    for (int i = 0; i < count; ++i)
        subject.boxes.at(i)->setValue(i + 1.5);

    const QVariant value = subject.editor->value();

    QCOMPARE(value, vectorOf(count, 1.5F, 2.5F, 3.5F, 4.5F));
    QCOMPARE(value.userType(), vectorOf(count, 0, 0).userType());
}

void tst_VecPropertyEditor::unequalComponentsSwitchToSeparate()
{
    Subject subject(3);
    subject.withSliders().withToggle().build();
    QSignalSpy toggled(subject.toggle, &DisclosureButton::toggled);
    SignalLog log(subject.editor.get());

    subject.editor->setValue(QVector3D(1, 2, 3));

    QVERIFY(subject.toggle->isChecked());
    QCOMPARE(toggled.count(), 0);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(subject.shownComponents(), 3);
    QVERIFY(subject.sliders.at(2)->isVisibleTo(subject.widget.get()));
    QCOMPARE(subject.editor->value(), QVariant(QVector3D(1, 2, 3)));
    QCOMPARE(subject.positions(), (QVector<int>{1000, 2000, 3000}));
}

void tst_VecPropertyEditor::equalComponentsLeaveTheMode()
{
    Subject subject(3);
    subject.withToggle().build();

    subject.editor->setValue(QVector3D(5, 5, 5));
    QVERIFY(!subject.toggle->isChecked());
    QCOMPARE(subject.shownComponents(), 1);

    subject.editor->setValue(QVector3D(1, 2, 3));
    subject.editor->setValue(QVector3D(5, 5, 5));
    QVERIFY(subject.toggle->isChecked());
    QCOMPARE(subject.shownComponents(), 3);
}

void tst_VecPropertyEditor::checkingTheToggleShowsAll()
{
    Subject subject(3);
    subject.withToggle().build();
    subject.editor->setValue(4.0F);
    SignalLog log(subject.editor.get());

    QTest::mouseClick(subject.toggle, Qt::LeftButton);

    QVERIFY(subject.toggle->isChecked());
    QCOMPARE(subject.shownComponents(), 3);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(subject.editor->value(), QVariant(QVector3D(4, 4, 4)));
}

void tst_VecPropertyEditor::uncheckingTheToggleCopiesTheFirst_data()
{
    QTest::addColumn<bool>("sliders");
    QTest::newRow("fields") << false;
    QTest::newRow("fields and sliders") << true;
}

void tst_VecPropertyEditor::uncheckingTheToggleCopiesTheFirst()
{
    QFETCH(bool, sliders);
    Subject subject(3);
    subject.withSliders(sliders).withToggle().build();
    subject.editor->setValue(QVector3D(1, 2, 3));
    SignalLog log(subject.editor.get());

    QTest::mouseClick(subject.toggle, Qt::LeftButton);

    QCOMPARE(subject.shownComponents(), 1);
    QCOMPARE(subject.numbers(), (QVector<double>{1, 1, 1}));
    QCOMPARE(subject.editor->value(), QVariant(QVector3D(1, 1, 1)));
    QCOMPARE(log.take(), QStringList());
    if (sliders) {
        QCOMPARE(subject.positions(), (QVector<int>{1000, 1000, 1000}));
        QVERIFY(!subject.sliders.at(1)->isVisibleTo(subject.widget.get()));
    }
}

void tst_VecPropertyEditor::setMultipleWithoutToggle()
{
    Subject subject(3);
    subject.build();
    subject.editor->setValue(QVector3D(1, 2, 3));

    subject.editor->setMultiple(false);
    QCOMPARE(subject.shownComponents(), 1);
    QCOMPARE(subject.numbers(), (QVector<double>{1, 1, 1}));

    subject.editor->setMultiple(true);
    QCOMPARE(subject.shownComponents(), 3);
}

void tst_VecPropertyEditor::readsVariants_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVector<double>>("two");
    QTest::addColumn<QVector<double>>("three");

    using Numbers = QVector<double>;
    const Numbers none2{0, 0};
    const Numbers none3{0, 0, 0};
    QTest::newRow("text of one") << QVariant(QStringLiteral("2")) << Numbers{2, 2}
                                 << Numbers{2, 2, 2};
    QTest::newRow("text of two") << QVariant(QStringLiteral("1 2")) << Numbers{1, 2} << none3;
    QTest::newRow("text of three")
        << QVariant(QStringLiteral("1 2 3")) << none2 << Numbers{1, 2, 3};
    QTest::newRow("no numbers") << QVariant(QStringLiteral("a b c")) << none2 << none3;
    QTest::newRow("float") << QVariant(1.5F) << Numbers{1.5, 1.5} << Numbers{1.5, 1.5, 1.5};
    QTest::newRow("double") << QVariant(1.5) << none2 << none3;
    QTest::newRow("int") << QVariant(1) << none2 << none3;
    QTest::newRow("vector of two")
        << QVariant(QVector2D(1, 2)) << Numbers{1, 2} << Numbers{1, 2, 0};
    QTest::newRow("vector of three")
        << QVariant(QVector3D(1, 2, 3)) << Numbers{1, 2} << Numbers{1, 2, 3};
    QTest::newRow("vector of four")
        << QVariant(QVector4D(1, 2, 3, 4)) << Numbers{1, 2} << Numbers{1, 2, 3};
    QTest::newRow("colour") << QVariant(QColor(255, 0, 255)) << Numbers{1, 0} << Numbers{1, 0, 1};
    QTest::newRow("point") << QVariant(QPointF(1, 2)) << none2 << none3;
    QTest::newRow("null") << QVariant() << none2 << none3;
    QTest::newRow("picture") << QVariant(QPixmap()) << none2 << none3;
}

void tst_VecPropertyEditor::readsVariants()
{
    QFETCH(QVariant, value);
    QFETCH(QVector<double>, two);
    QFETCH(QVector<double>, three);
    for (int count = 2; count <= 4; ++count) {
        Subject subject(count);
        subject.build();
        subject.editor->setValue(vectorOf(count, 9, 8, 7, 6));

        subject.editor->setValue(value);

        // Four components are read as three, and the fourth is 0.
        QCOMPARE(subject.numbers(), count == 2 ? two : firstOf(count, three));
    }
}

void tst_VecPropertyEditor::fourthComponentIsAlwaysZero()
{
    Subject subject(4);
    subject.withToggle().build();

    subject.editor->setValue(QVector4D(1, 1, 1, 1));
    QCOMPARE(subject.numbers(), (QVector<double>{1, 1, 1, 0}));
    QVERIFY(subject.toggle->isChecked()); // 0 differs from 1

    subject.boxes.at(3)->setValue(7);
    QCOMPARE(subject.editor->value(), QVariant(QVector4D(1, 1, 1, 7)));
    subject.editor->setValue(QVector4D(0.25F, 0.5F, 0.75F, 1));
    QCOMPARE(subject.numbers(), (QVector<double>{0.25, 0.5, 0.75, 0}));
}

void tst_VecPropertyEditor::setValueMovesSlidersInSinglePrecision()
{
    Subject subject(2);
    subject.withSliders().build();

    subject.editor->setValue(QVector2D(0.7F, 0.0019F));

    // In double precision 0.7F * 1000 is 699.99999.
    QCOMPARE(subject.positions(), (QVector<int>{700, 1}));
}

void tst_VecPropertyEditor::setValueIsSilent_data()
{
    QTest::addColumn<bool>("sliders");
    QTest::addColumn<bool>("toggle");
    QTest::newRow("plain") << false << false;
    QTest::newRow("sliders") << true << false;
    QTest::newRow("toggle") << false << true;
    QTest::newRow("sliders and toggle") << true << true;
}

void tst_VecPropertyEditor::setValueIsSilent()
{
    QFETCH(bool, sliders);
    QFETCH(bool, toggle);
    for (int count = 2; count <= 4; ++count) {
        Subject subject(count);
        subject.withSliders(sliders).withToggle(toggle).build();
        SignalLog log(subject.editor.get());

        subject.editor->setValue(vectorOf(count, 3, 3, 3));
        subject.editor->setValue(vectorOf(count, 1, 2, 3));

        QCOMPARE(log.take(), QStringList());
        QCOMPARE(subject.editor->value(), vectorOf(count, 1, 2, 3));
        for (const QDoubleSpinBox *box : subject.boxes)
            QVERIFY(!box->signalsBlocked());
    }
}

void tst_VecPropertyEditor::sliderMovesItsField()
{
    Subject subject(3, 0.0F, 1.0F);
    subject.withSliders().build();
    SignalLog log(subject.editor.get());

    subject.sliders.at(1)->setValue(250);

    QCOMPARE(subject.numbers(), (QVector<double>{0, 0.25, 0}));
    QCOMPARE(log.take(), kOneValue);
}

// Each slider that moves writes all sliders into their fields, also where a field was typed into
// and its slider has not followed yet.
void tst_VecPropertyEditor::sliderCopiesAllSliders()
{
    Subject subject(2, 0.0F, 1.0F);
    subject.withSliders().build();
    subject.boxes.at(1)->setValue(0.75);

    subject.sliders.at(0)->setValue(500);

    QCOMPARE(subject.numbers(), (QVector<double>{0.5, 0}));
}

void tst_VecPropertyEditor::fieldDoesNotMoveItsSlider()
{
    Subject subject(2, 0.0F, 1.0F);
    subject.withSliders().build();
    SignalLog log(subject.editor.get());

    subject.boxes.at(0)->setValue(0.5);
    QCOMPARE(log.take(), kOneValue);
    QCOMPARE(subject.positions(), (QVector<int>{0, 0}));

    subject.editor->setValue(subject.editor->value()); // the host's echo
    QCOMPARE(subject.positions(), (QVector<int>{500, 0}));
}

void tst_VecPropertyEditor::dragIsOneRun()
{
    Subject subject(2, 0.0F, 1.0F);
    subject.withSliders().build();
    subject.widget->show();
    SignalLog log(subject.editor.get());
    SliderDrag drag(subject.sliders.at(1));

    drag.press();
    drag.moveBy(50);
    drag.moveBy(50);
    drag.release();

    QCOMPARE(log.take(), (QStringList{QStringLiteral("start"), QStringLiteral("value"),
                                      QStringLiteral("value"), QStringLiteral("end")}));
    QVERIFY(subject.numbers().at(1) > 0);
}

void tst_VecPropertyEditor::typingIsOneRun()
{
    Subject subject(2);
    subject.build();
    subject.widget->show();
    subject.widget->activateWindow();
    SignalLog log(subject.editor.get());
    subject.boxes.at(1)->setFocus();
    QTRY_VERIFY(subject.boxes.at(1)->hasFocus());
    QCOMPARE(log.take(), QStringList{QStringLiteral("start")});
    subject.boxes.at(1)->selectAll();

    QTest::keyClicks(subject.boxes.at(1), QStringLiteral("7"));
    QCOMPARE(log.take(), kOneValue);

    subject.boxes.at(0)->setFocus();
    QCOMPARE(log.take(), (QStringList{QStringLiteral("end"), QStringLiteral("start")}));
    QCOMPARE(subject.editor->value(), QVariant(QVector2D(0, 7)));
}

void tst_VecPropertyEditor::wheelMovesSlidersAlone()
{
    Subject subject(2, 0.0F, 1.0F);
    subject.withSliders().build();
    subject.widget->show();

    turnWheelOver(subject.boxes.at(0));
    QCOMPARE(subject.numbers(), (QVector<double>{0, 0}));

    turnWheelOver(subject.sliders.at(0));
    QVERIFY(subject.sliders.at(0)->value() > 0);
    QVERIFY(subject.numbers().at(0) > 0);
}

void tst_VecPropertyEditor::isHarmlessBeforeItsWidget()
{
    QFETCH(int, count);
    Subject subject(count);
    subject.makeEditor();

    subject.editor->setValue(vectorOf(count, 1, 2, 3));
    subject.editor->setMultiple(false);
    subject.editor->propertyChanged();
    QMetaObject::invokeMethod(subject.editor.get(), "sliderChanged", Q_ARG(int, 3));

    QCOMPARE(subject.editor->value(), vectorOf(count, 0, 0));
}

void tst_VecPropertyEditor::otherCountsAreTakenAsTheNearest()
{
    class HostEditor : public VecPropertyEditor
    {
    public:
        using VecPropertyEditor::VecPropertyEditor;
        void setValue(const QVariant &) override {}
        QVariant value() const override { return {}; }
    };
    for (const auto &[asked, fields] : {std::pair{-1, 2}, std::pair{1, 2}, std::pair{9, 4}}) {
        Property property(QStringLiteral("v"), QString(), QStringLiteral("host"));
        HostEditor editor(&property, asked);
        const std::unique_ptr<QWidget> widget(editor.widget(nullptr));

        QCOMPARE(int(widget->findChildren<QDoubleSpinBox *>().size()), fields);
    }
}

void tst_VecPropertyEditor::wrongRangesAreBuilt_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("null") << QVariant() << QVariant() << 0 << 0;
    QTest::newRow("no numbers") << QVariant(QStringLiteral("low")) << QVariant(QPixmap()) << 0 << 0;
    QTest::newRow("reversed") << QVariant(1.0F) << QVariant(-1.0F) << 1000 << 1000;
    QTest::newRow("infinite") << QVariant(-infinity) << QVariant(infinity) << -kSliderLimit
                              << kSliderLimit;
    QTest::newRow("not numbers") << QVariant(nan) << QVariant(nan) << 0 << 0;
    QTest::newRow("beyond int") << QVariant(-1e30F) << QVariant(1e30F) << -kSliderLimit
                                << kSliderLimit;
}

void tst_VecPropertyEditor::wrongRangesAreBuilt()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Subject subject(3, minimum, maximum);
    subject.withSliders().withToggle().build();
    subject.widget->show();

    subject.editor->setValue(QVector3D(1, 2, std::numeric_limits<float>::quiet_NaN()));
    QTest::keyClick(subject.boxes.at(0), Qt::Key_Up);
    QTest::keyClick(subject.sliders.at(0), Qt::Key_PageUp);

    for (const QSlider *slider : subject.sliders) {
        QTEST(slider->minimum(), "lowest");
        QTEST(slider->maximum(), "highest");
    }
    for (const double number : subject.numbers())
        QVERIFY(qIsFinite(number));
    QVERIFY(!subject.widget->grab().isNull());
}

void tst_VecPropertyEditor::revertsToDefault()
{
    Subject subject(2);
    subject.property.setDefaultValue(QStringLiteral("3 4"));
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.editor->value(), QVariant(QVector2D(3, 4)));
    QCOMPARE(log.take(), kOneValue);
}

void tst_VecPropertyEditor::editorDeletedInTheCallback()
{
    Subject subject(2, 0.0F, 1.0F);
    subject.withSliders().build();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.reset(); });

    subject.sliders.at(0)->setValue(500);

    QVERIFY(!subject.editor);
    QCOMPARE(subject.numbers().at(0), 0.5);
}

QTEST_MAIN(tst_VecPropertyEditor)
#include "tst_VecPropertyEditor.moc"
