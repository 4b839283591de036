#include "property/editors/Transform2DPropertyEditor.h"

#include "core/DisclosureButton.h"
#include "property/PropertyEditorPanel.h"
#include "property/ValueCodecs.h"

#include "support/BoolHintRows.h"
#include "support/RecordingDelegate.h"
#include "support/Registry.h"
#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/TransformEditor.h"
#include "support/Wheel.h"

#include <QColor>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QVector3D>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using namespace Tessark::PropertyUI;
using namespace TestSupport;
using Tessark::UI::DisclosureButton;
using Editor = Transform2DPropertyEditor;
using Subject = TransformEditor;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
const QStringList kOneValue{QStringLiteral("value")};

/// What a row is to look like, written down without looking into the editor.
struct Row
{
    QString label;
    double lowest;
    double highest;
    double start;
    int decimals;
    double step;
    QString suffix;
    int lowestPosition;
    int highestPosition;
    int startPosition;
    int singleStep;
    int pageStep;
};

Row offsetRow(const QString &label)
{
    return {label, -1.0, 1.0, 0.0, 4, 0.02, QString(), -1000, 1000, 0, 2, 20};
}

Row rotationRow(const QString &label)
{
    const QString degrees = QString::fromUtf8(" \xC2\xB0");
    return {label, -180.0, 180.0, 0.0, 2, 3.6, degrees, -180000, 180000, 0, 360, 3600};
}

Row scaleRow(const QString &label)
{
    return {label, 0.0001, 5.0, 1.0, 4, 0.049999, QString(), 0, 5000, 1000, 10, 100};
}

QVector<Row> expectedRows(int hints)
{
    QVector<Row> rows;
    if (!(hints & NoPosition))
        rows << offsetRow(QStringLiteral("Offset X:")) << offsetRow(QStringLiteral("Y:"));
    if (!(hints & NoRotation))
        rows << rotationRow(QStringLiteral("Rotation:"));
    if (!(hints & NoScale)) {
        const bool oneScale = (hints & Uniform) || isFoldable(hints);
        rows << scaleRow(oneScale ? QStringLiteral("Scale:") : QStringLiteral("Scale X:"));
        if (!(hints & Uniform))
            rows << scaleRow(QStringLiteral("Y:"));
    }
    return rows;
}

/// A change of the user's by one kind of control, in an editor whose scale is unfolded.
struct Edit
{
    const char *name;
    std::function<void(Subject &)> make;
};

QVector<Edit> edits()
{
    return {
        {"field", [](Subject &subject) { subject.box(3)->setValue(2.0); }},
        {"slider", [](Subject &subject) { subject.slider(3)->setValue(2000); }},
        {"folding", [](Subject &subject) { subject.button->click(); }},
    };
}

/// A subject with scales (1, 3), unfolded: each of the edits changes something.
std::unique_ptr<Subject> makeEditable()
{
    auto subject = std::make_unique<Subject>(Collapsible);
    subject->build().setValue(Numbers{0.1234, 0.2, 30, 1, 3});
    return subject;
}

void addEdits()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < edits().size(); ++i)
        QTest::newRow(edits().at(i).name) << i;
}

} // namespace

class tst_Transform2DPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObject();
    void isRegisteredForItsType();
    void matrixTypeIsKnownByName();
    void asksForTheFullWidth();
    void takesTheFullWidthOfAPanel();
    void rowsForAllHints_data() { addAllTransformHints(); }
    void rowsForAllHints();
    void slidersSpanPlainRows_data() { addAllTransformHints(); }
    void slidersSpanPlainRows();
    void hintsLeaveNumbersOut_data() { addAllTransformHints(); }
    void hintsLeaveNumbersOut();
    void hintsAreReadAsBool_data() { addBoolHintRows(false); }
    void hintsAreReadAsBool();
    void hintsAreReadWhenTheWidgetIsBuilt();
    void widgetIsBuiltOnce();
    void isHarmlessBeforeItsWidget();

    void readsVariants_data();
    void readsVariants();
    void setValueShowsNumbers();
    void setValueTruncatesPositions();
    void numbersBeyondTheControlsClamp_data();
    void numbersBeyondTheControlsClamp();
    void setValueIsSilent();
    void revertsToDefault();

    void startsFolded();
    void buttonUnfolds();
    void foldingCopiesScaleX();
    void foldingEqualScalesIsSilent();
    void foldedScaleMadeByTheArrowsComesBackSilently();
    void foldedValueHasOneScale();
    void unfoldingShowsTheFoldedScale();
    void setScaleExpandedMovesTheButton();
    void unequalScalesUnfold();
    void equalScalesLeaveTheRow();
    void buttonWithoutScaleDoesNothing_data();
    void buttonWithoutScaleDoesNothing();
    void setScaleExpandedWithoutHint_data();
    void setScaleExpandedWithoutHint();

    void fieldsMoveAllSliders();
    void slidersMoveAllFields();
    void slidersForgetTypedDigits();
    void truncationIsOfTheDouble();
    void scaleSliderAtZero();
    void dragIsOneRun_data();
    void dragIsOneRun();
    void typingIsOneRun();
    void wheelMovesSlidersAlone();
    void keysStepSliders();

    void echoDoesNothing_data();
    void echoDoesNothing();
    void echoOfFoldingIsShown();
    void hostMayUnfoldInTheCallback_data();
    void hostMayUnfoldInTheCallback();
    void editorDeletedInTheCallback_data() { addEdits(); }
    void editorDeletedInTheCallback();
    void widgetDeletedInTheCallback();
    void panelDeletedInTheCallback_data() { addEdits(); }
    void panelDeletedInTheCallback();
};

void tst_Transform2DPropertyEditor::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_Transform2DPropertyEditor::metaObject()
{
    const QMetaObject &meta = Editor::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }

    QCOMPARE(meta.className(), "Tessark::PropertyUI::Transform2DPropertyEditor");
    QCOMPARE(meta.superClass(), &PropertyEditor::staticMetaObject);
    QCOMPARE(methods, (QStringList{QStringLiteral("setScaleExpanded(bool)"),
                                   QStringLiteral("spinBoxChanged(double)"),
                                   QStringLiteral("sliderChanged(int)")}));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_Transform2DPropertyEditor::isRegisteredForItsType()
{
    PropertyEditorPanel::InitialiseRegistry();
    const auto factory = factoryOf(QStringLiteral("transform2D"));
    QVERIFY(factory);
    Property property(QStringLiteral("t"), QString(), kPropertyTypeTransform2D);

    const std::unique_ptr<PropertyEditor> editor(factory(&property));

    QVERIFY(qobject_cast<Editor *>(editor.get()));
    QCOMPARE(editor->editedProperty(), &property);
}

void tst_Transform2DPropertyEditor::matrixTypeIsKnownByName()
{
    Subject subject;
    subject.build();
    const int type = qMetaTypeId<DoubleMatrix3x3>();

    QCOMPARE(subject.editor->value().userType(), type);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCOMPARE(QMetaType::type("QMatrix3x3"), type);
    QT_WARNING_POP
    QCOMPARE(int(QMetaType(type).sizeOf()), int(9 * sizeof(double)));
}

void tst_Transform2DPropertyEditor::asksForTheFullWidth()
{
    Property property(QStringLiteral("t"), QString(), kPropertyTypeTransform2D);
    property.setHint(QStringLiteral("full_width"), false);

    const std::unique_ptr<PropertyEditor> editor(Editor::Factory(&property));

    QCOMPARE(property.hint(QStringLiteral("full_width")), QVariant(true));
    QCOMPARE(editor->hint(kPropertyHintFullWidth), QVariant(true));
    QCOMPARE(property.hints.size(), 1);
}

void tst_Transform2DPropertyEditor::takesTheFullWidthOfAPanel()
{
    Property number(QStringLiteral("n"), QStringLiteral("A number"), kPropertyTypeFloat);
    Property transform(QStringLiteral("t"), QStringLiteral("T"), kPropertyTypeTransform2D);
    PropertyEditorPanel panel({&number, &transform}, nullptr, nullptr);
    panel.resize(500, 400);
    panel.show();

    const QLabel *offset = nullptr;
    for (const QLabel *label : panel.findChildren<QLabel *>()) {
        if (label->text() == QStringLiteral("Offset X:"))
            offset = label;
    }
    const auto *const box = panel.findChild<QDoubleSpinBox *>();
    QVERIFY(offset && box);
    const int begin = offset->parentWidget()->mapTo(&panel, QPoint()).x();
    QVERIFY(begin < box->parentWidget()->mapTo(&panel, QPoint()).x());
    QVERIFY(offset->parentWidget()->width() > 450);
}

void tst_Transform2DPropertyEditor::rowsForAllHints()
{
    QFETCH(int, hints);
    const QVector<Row> expected = expectedRows(hints);
    const bool hasButton = (hints & Collapsible) && !(hints & Uniform);
    Subject subject(hints);
    subject.build();

    QVERIFY(subject.grid);
    QCOMPARE(subject.grid->contentsMargins(), QMargins());
    QCOMPARE(subject.rows, expected.size());
    QCOMPARE(subject.grid->count(), 3 * expected.size() + (hasButton ? 1 : 0));
    QCOMPARE(subject.widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(),
             subject.grid->count());
    for (int row = 0; row < expected.size(); ++row) {
        const Row &want = expected.at(row);
        const QDoubleSpinBox *const box = subject.box(row);
        const QSlider *const slider = subject.slider(row);
        QCOMPARE(subject.label(row)->text(), want.label);
        QCOMPARE(box->minimum(), want.lowest);
        QCOMPARE(box->maximum(), want.highest);
        QCOMPARE(box->value(), want.start);
        QCOMPARE(box->decimals(), want.decimals);
        QCOMPARE(box->singleStep(), want.step);
        QCOMPARE(box->suffix(), want.suffix);
        QCOMPARE(slider->orientation(), Qt::Horizontal);
        QCOMPARE(slider->minimum(), want.lowestPosition);
        QCOMPARE(slider->maximum(), want.highestPosition);
        QCOMPARE(slider->value(), want.startPosition);
        QCOMPARE(slider->singleStep(), want.singleStep);
        QCOMPARE(slider->pageStep(), want.pageStep);
        const bool folded = isFoldable(hints) && row == expected.size() - 1;
        QVERIFY(folded ? subject.isHidden(row) : subject.isShown(row));
    }
}

void tst_Transform2DPropertyEditor::slidersSpanPlainRows()
{
    QFETCH(int, hints);
    Subject subject(hints);
    subject.build();
    const bool hasButton = (hints & Collapsible) && !(hints & Uniform);
    const int scaleRow = (hints & NoPosition ? 0 : 2) + (hints & NoRotation ? 0 : 1);
    const int plainRows = hasButton ? scaleRow : subject.rows;

    for (int row = 0; row < subject.rows; ++row) {
        const QLayoutItem *const label = subject.grid->itemAtPosition(row, 0);
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignRight));
        const bool spans = subject.at<QSlider>(row, 1) == subject.slider(row);
        QCOMPARE(spans, row < plainRows);
    }
    QCOMPARE(subject.button != nullptr, hasButton);
    QCOMPARE(subject.at<DisclosureButton>(scaleRow, 1), subject.button);
    if (hasButton) {
        QVERIFY(subject.button->isCheckable());
        QVERIFY(!subject.button->isChecked());
        QVERIFY(subject.button->isFlat());
        QCOMPARE(subject.button->property("group"), QVariant(QStringLiteral("round")));
    }
    QCOMPARE(subject.editor->isScaleExpanded(), !hasButton);
}

void tst_Transform2DPropertyEditor::hintsLeaveNumbersOut()
{
    QFETCH(int, hints);
    Subject subject(hints);
    subject.build();
    QVERIFY(subject.value() == DoubleMatrix3x3());

    subject.setValue(Numbers{0.1, 0.2, 30, 2, 4});

    Numbers expected{0.1, 0.2, 30, 2, 4};
    if (hints & NoPosition)
        expected[0] = expected[1] = 0;
    if (hints & NoRotation)
        expected[2] = 0;
    if (hints & Uniform)
        expected[4] = 2;
    if (hints & NoScale)
        expected[3] = expected[4] = 1;
    QVERIFY(subject.holds(expected));
}

void tst_Transform2DPropertyEditor::hintsAreReadAsBool()
{
    QFETCH(bool, expected);
    for (int i = 0; i < 5; ++i) {
        Subject subject;
        applyBoolHintRow(subject.property, transformHints().at(i));
        Subject same(expected ? 1 << i : 0);
        subject.build();
        same.build();

        QCOMPARE(subject.rows, same.rows);
        QCOMPARE(subject.label(subject.rows - 2)->text(), same.label(same.rows - 2)->text());
        QCOMPARE(subject.label(subject.rows - 1)->text(), same.label(same.rows - 1)->text());
        QCOMPARE(subject.button != nullptr, same.button != nullptr);
    }
}

void tst_Transform2DPropertyEditor::hintsAreReadWhenTheWidgetIsBuilt()
{
    Subject subject;
    subject.property.setHint(kPropertyHintXfrmNoRotation, true);
    subject.build();
    QCOMPARE(subject.rows, 4);

    for (const QString &hint : transformHints())
        subject.property.setHint(hint, hint != kPropertyHintXfrmNoRotation);
    subject.editor->propertyChanged();
    subject.setValue(Numbers{0.1, 0.2, 30, 2, 4});

    QCOMPARE(subject.numbers(), (QVector<double>{0.1, 0.2, 2, 4}));
    QVERIFY(subject.holds({0.1, 0.2, 0, 2, 4}));
    QVERIFY(subject.editor->isScaleExpanded());
}

void tst_Transform2DPropertyEditor::widgetIsBuiltOnce()
{
    Subject subject(Collapsible);
    SignalLog log(subject.editor.get());
    subject.build();

    QVERIFY(!subject.widget->parent());
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QCOMPARE(subject.grid->count(), 16);
    QCOMPARE(log.take(), QStringList());
}

void tst_Transform2DPropertyEditor::isHarmlessBeforeItsWidget()
{
    Subject subject(Collapsible);
    Editor *const editor = subject.editor.get();
    SignalLog log(editor);

    subject.setValue(Numbers{0.1, 0.2, 30, 2, 4});
    editor->setScaleExpanded(true);
    editor->setScaleExpanded(false);
    QVERIFY(subject.value() == DoubleMatrix3x3());
    QVERIFY(editor->isScaleExpanded());
    QCOMPARE(log.take(), QStringList());

    // Nothing to copy, but still a change that the slots announce.
    QMetaObject::invokeMethod(editor, "sliderChanged", Q_ARG(int, 3));
    QMetaObject::invokeMethod(editor, "spinBoxChanged", Q_ARG(double, 3.0));
    QCOMPARE(log.take(), kOneValue + kOneValue);
}

void tst_Transform2DPropertyEditor::readsVariants_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVector<double>>("numbers");

    const QVector<double> identity{0, 0, 0, 1, 1};
    const DoubleMatrix3x3 matrix = matrixOf({0.25, -0.5, 30, 2, 4});
    QTest::newRow("matrix") << QVariant::fromValue(matrix) << QVector<double>{0.25, -0.5, 30, 2, 4};
    QTest::newRow("text") << QVariant(QMatrix3x3_toString(matrix))
                          << QVector<double>{0.25, -0.5, 30, 2, 4};
    QTest::newRow("text of offsets") << QVariant(QStringLiteral("1 0 0 0 1 0 -0.25 0.5 1"))
                                     << QVector<double>{0.25, -0.5, 0, 1, 1};
    QTest::newRow("text of one number") << QVariant(QStringLiteral("2")) << identity;
    QTest::newRow("text of eight") << QVariant(QStringLiteral("2 0 0 0 2 0 0 0")) << identity;
    QTest::newRow("empty text") << QVariant(QString()) << identity;
    QTest::newRow("null") << QVariant() << identity;
    QTest::newRow("integer") << QVariant(7) << identity;
    QTest::newRow("double") << QVariant(2.5) << identity;
    QTest::newRow("byte array") << QVariant(QByteArray("2 0 0 0 2 0 0 0 1")) << identity;
    QTest::newRow("vector") << QVariant(QVector3D(2, 2, 2)) << identity;
    QTest::newRow("colour") << QVariant(QColor(Qt::red)) << identity;
    QTest::newRow("list") << QVariant(QVariantList{2, 0, 0, 0, 2, 0, 0, 0, 1}) << identity;
}

void tst_Transform2DPropertyEditor::readsVariants()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.build().setValue(Numbers{0.1, 0.2, 3, 4, 5});

    subject.editor->setValue(value);

    QTEST(subject.numbers(), "numbers");
}

void tst_Transform2DPropertyEditor::setValueShowsNumbers()
{
    Subject subject;
    subject.build();

    subject.setValue(Numbers{0.12345, -0.5, 12.3456, 0.25, 4});

    QCOMPARE(subject.numbers(), (QVector<double>{0.1235, -0.5, 12.35, 0.25, 4}));
    QCOMPARE(subject.box(0)->text(), QStringLiteral("0.1235"));
    QCOMPARE(subject.box(2)->text(), QString::fromUtf8("12.35 \xC2\xB0"));
    QCOMPARE(subject.slider(0)->value(), 123);
    QVERIFY(subject.slider(1)->value() >= -500 && subject.slider(1)->value() <= -499);
    QCOMPARE(subject.slider(2)->value(), 12345);
    QVERIFY(subject.holds({0.1235, -0.5, 12.35, 0.25, 4}));
}

// The position comes from the number itself, not from what its field rounds it to.
void tst_Transform2DPropertyEditor::setValueTruncatesPositions()
{
    Subject subject;
    subject.build();

    subject.setValue(Numbers{0.12398, -0.12398, -12.3458, 1.9999, 0.0005});

    QCOMPARE(subject.positions(), (QVector<int>{123, -123, -12345, 1999, 0}));
    QCOMPARE(subject.numbers(), (QVector<double>{0.124, -0.124, -12.35, 1.9999, 0.0005}));
}

void tst_Transform2DPropertyEditor::numbersBeyondTheControlsClamp_data()
{
    QTest::addColumn<QVector<double>>("elements");
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<QVector<int>>("positions");

    const QVector<double> smallest{0, 0, 0, 0.0001, 0.0001};
    QTest::newRow("far offset") << elementsOf(matrixOf({7, -9, 0, 1, 1}))
                                << QVector<double>{1, -1, 0, 1, 1}
                                << QVector<int>{1000, -1000, 0, 1000, 1000};
    QTest::newRow("scales") << elementsOf(matrixOf({0, 0, 0, 1e9, 1e-9}))
                            << QVector<double>{0, 0, 0, 5, 0.0001}
                            << QVector<int>{0, 0, 0, 5000, 0};
    QTest::newRow("infinite") << QVector<double>(9, kInfinity)
                              << QVector<double>{0, 0, 45, 0.0001, 0.0001}
                              << QVector<int>{0, 0, 45000, 0, 0};
    QTest::newRow("minus infinite")
        << QVector<double>(9, -kInfinity) << QVector<double>{0, 0, -135, 0.0001, 0.0001}
        << QVector<int>{0, 0, -135000, 0, 0};
    QTest::newRow("not numbers") << QVector<double>(9, kNaN) << smallest << QVector<int>(5, 0);
    QTest::newRow("zeros") << QVector<double>(9, 0) << QVector<double>{0, 0, 0, 5, 5}
                           << QVector<int>{0, 0, 0, 5000, 5000};
    QTest::newRow("first row of zeros")
        << QVector<double>{0, 0, 0, 0, 1, 0, 0, 0, 1} << QVector<double>{0, 0, 0, 5, 1}
        << QVector<int>{0, 0, 0, 5000, 1000};
    QTest::newRow("second row of zeros")
        << QVector<double>{1, 0, 0, 0, 0, 0, 0, 0, 1} << QVector<double>{0, 0, 0, 1, 5}
        << QVector<int>{0, 0, 0, 1000, 5000};
    QTest::newRow("huge") << QVector<double>{1e200, 0, 1e300, 0, 1e200, -1e300, 0, 0, 1}
                          << QVector<double>{-0.5, -0.5, 0, 0.0001, 0.0001}
                          << QVector<int>{-500, -500, 0, 0, 0};
    QTest::newRow("overflowing offset")
        << QVector<double>{1, 0, 1e300, 0, 1, -1e300, 0, 0, 1} << QVector<double>{-1, 1, 0, 1, 1}
        << QVector<int>{-1000, 1000, 0, 1000, 1000};
    QTest::newRow("scale 0") << elementsOf(matrixOf({0, 0, 0, 0, 0})) << smallest
                             << QVector<int>(5, 0);
}

void tst_Transform2DPropertyEditor::numbersBeyondTheControlsClamp()
{
    QFETCH(QVector<double>, elements);
    QFETCH(QVector<double>, numbers);
    QFETCH(QVector<int>, positions);
    Subject subject;
    subject.build().setValue(Numbers{0.1, 0.2, 3, 4, 5});

    subject.setValue(matrixFrom(elements));

    // A singular matrix has offsets of its own making: whether they are infinite or not a number
    // decides only where within the range they end up.
    for (int row = 0; row < 5; ++row) {
        const double tolerance = row == 2 ? 0.001 : 0.0;
        QVERIFY(std::abs(subject.numbers().at(row) - numbers.at(row)) <= tolerance);
        QVERIFY(std::abs(subject.positions().at(row) - positions.at(row)) <= 1);
    }
    for (const double element : elementsOf(subject.value()))
        QVERIFY(std::isfinite(element));
    QVERIFY(!subject.widget->grab().isNull());
}

void tst_Transform2DPropertyEditor::setValueIsSilent()
{
    for (int hints = 0; hints < 32; ++hints) {
        Subject subject(hints);
        subject.build();
        SignalLog log(subject.editor.get());

        subject.setValue(Numbers{0.1, 0.2, 30, 2, 4});
        subject.setValue(kIdentity);
        subject.setValue(Numbers{0.1, 0.2, 30, 2, 2});
        subject.setValue(matrixFrom(QVector<double>(9, kNaN)));
        subject.editor->setValue(7);
        subject.editor->setValues({QStringLiteral("2 0 0 0 2 0 0 0 1"), 7});

        QCOMPARE(log.take(), QStringList());
        for (int row = 0; row < subject.rows; ++row)
            QVERIFY(!subject.box(row)->signalsBlocked() && !subject.slider(row)->signalsBlocked());
    }
}

void tst_Transform2DPropertyEditor::revertsToDefault()
{
    Subject subject;
    subject.property.setDefaultValue(QStringLiteral("0.5 0 0 0 0.5 0 0.25 0.25 1"));
    subject.build().setValue(Numbers{0.1, 0.2, 30, 2, 4});
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QVERIFY(subject.holds({0, 0, 0, 2, 2}));
    QCOMPARE(log.take(), kOneValue);
}

void tst_Transform2DPropertyEditor::startsFolded()
{
    Subject subject(Collapsible);
    subject.build();
    subject.show();

    QVERIFY(subject.isHidden(4));
    QVERIFY(subject.button->isVisible());
    QCOMPARE(subject.label(3)->text(), QStringLiteral("Scale:"));
    QVERIFY(!subject.editor->isScaleExpanded());
}

void tst_Transform2DPropertyEditor::buttonUnfolds()
{
    Subject subject(Collapsible);
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());

    QTest::mouseClick(subject.button, Qt::LeftButton);
    QVERIFY(subject.isShown(4));
    QVERIFY(subject.editor->isScaleExpanded());
    QCOMPARE(subject.label(3)->text(), QStringLiteral("Scale X:"));
    QCOMPARE(subject.label(4)->text(), QStringLiteral("Y:"));

    QTest::mouseClick(subject.button, Qt::LeftButton);
    QVERIFY(subject.isHidden(4));
    QVERIFY(!subject.editor->isScaleExpanded());
    QCOMPARE(subject.label(3)->text(), QStringLiteral("Scale:"));
    QCOMPARE(log.take(), QStringList());
}

void tst_Transform2DPropertyEditor::foldingCopiesScaleX()
{
    Subject subject(Collapsible);
    subject.build();
    subject.button->click();
    subject.box(3)->setValue(2.0005);
    subject.slider(4)->setValue(3000);
    subject.box(3)->setValue(2.0005);
    SignalLog log(subject.editor.get());
    QVERIFY(subject.holds({0, 0, 0, 2.0005, 3}));

    subject.button->click();

    QCOMPARE(log.take(), kOneValue);
    QVERIFY(subject.isHidden(4));
    QCOMPARE(subject.box(4)->value(), 2.0005);
    QCOMPARE(subject.slider(4)->value(), 2000);
    QVERIFY(subject.holds({0, 0, 0, 2.0005, 2.0005}));
    QVERIFY(!subject.box(4)->signalsBlocked() && !subject.slider(4)->signalsBlocked());
}

void tst_Transform2DPropertyEditor::foldingEqualScalesIsSilent()
{
    Subject subject(Collapsible);
    subject.build().setValue(Numbers{0, 0, 0, 2, 3});
    subject.setValue(Numbers{0, 0, 0, 3, 3});
    QVERIFY(subject.editor->isScaleExpanded());
    SignalLog log(subject.editor.get());

    subject.button->click();

    QCOMPARE(log.take(), QStringList());
    QVERIFY(subject.isHidden(4));
}

void tst_Transform2DPropertyEditor::foldedScaleMadeByTheArrowsComesBackSilently()
{
    Subject subject(Collapsible);
    subject.build().setValue(kIdentity);
    subject.box(3)->stepUp(); // by 0.049999, which is more decimals than the field holds
    const QVariant made = subject.editor->value();
    SignalLog log(subject.editor.get());

    subject.editor->setValue(made);

    QCOMPARE(log.take(), QStringList());
    QVERIFY(subject.holds({0, 0, 0, 1.05, 1.05}));
}

void tst_Transform2DPropertyEditor::foldedValueHasOneScale()
{
    Subject subject(Collapsible);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.box(3)->setValue(2.0);

    QCOMPARE(log.take(), kOneValue);
    QVERIFY(subject.holds({0, 0, 0, 2, 2}));
    QCOMPARE(subject.box(4)->value(), 1.0); // scale Y waits as it was
}

// Unfolding copies nothing and announces nothing: scale Y is what its row last held.
void tst_Transform2DPropertyEditor::unfoldingShowsTheFoldedScale()
{
    Subject subject(Collapsible);
    subject.build();
    subject.box(3)->setValue(2.0);
    SignalLog log(subject.editor.get());

    subject.button->click();

    QCOMPARE(log.take(), QStringList());
    QVERIFY(subject.holds({0, 0, 0, 2, 1}));
}

void tst_Transform2DPropertyEditor::setScaleExpandedMovesTheButton()
{
    Subject subject(Collapsible);
    subject.build();
    SignalLog log(subject.editor.get());
    const QSignalSpy toggled(subject.button, &DisclosureButton::toggled);

    subject.editor->setScaleExpanded(true);
    QVERIFY(subject.button->isChecked());
    QVERIFY(subject.isShown(4));
    QCOMPARE(log.take(), QStringList());

    subject.slider(4)->setValue(3000);
    QCOMPARE(log.take(), kOneValue);
    subject.editor->setScaleExpanded(false);
    QVERIFY(!subject.button->isChecked());
    QVERIFY(subject.isHidden(4));
    QCOMPARE(log.take(), kOneValue); // once, the button being moved silently
    QVERIFY(toggled.isEmpty());
    QVERIFY(!subject.button->signalsBlocked());

    subject.editor->setScaleExpanded(false);
    QCOMPARE(log.take(), QStringList());
}

void tst_Transform2DPropertyEditor::unequalScalesUnfold()
{
    Subject subject(Collapsible);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.setValue(Numbers{0, 0, 0, 2, 3});

    QVERIFY(subject.isShown(4));
    QVERIFY(subject.button->isChecked());
    QCOMPARE(subject.label(3)->text(), QStringLiteral("Scale X:"));
    QVERIFY(subject.holds({0, 0, 0, 2, 3}));
    QCOMPARE(log.take(), QStringList());
}

void tst_Transform2DPropertyEditor::equalScalesLeaveTheRow()
{
    Subject subject(Collapsible);
    subject.build();

    subject.setValue(Numbers{0.1, 0.2, 33, 2, 2});
    QVERIFY(subject.isHidden(4));
    QVERIFY(!subject.button->isChecked());

    subject.button->click();
    subject.setValue(Numbers{0.1, 0.2, 33, 3, 3});
    QVERIFY(subject.isShown(4));
    QVERIFY(subject.button->isChecked());
}

void tst_Transform2DPropertyEditor::buttonWithoutScaleDoesNothing_data()
{
    QTest::addColumn<int>("hints");
    QTest::addColumn<int>("row");
    QTest::newRow("below rotation") << int(Collapsible | NoScale) << 3;
    QTest::newRow("below offset") << int(Collapsible | NoScale | NoRotation) << 2;
    QTest::newRow("alone") << int(Collapsible | NoScale | NoRotation | NoPosition) << 0;
}

void tst_Transform2DPropertyEditor::buttonWithoutScaleDoesNothing()
{
    QFETCH(int, hints);
    QFETCH(int, row);
    Subject subject(hints);
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());
    QCOMPARE(subject.at<DisclosureButton>(row, 1), subject.button);
    QCOMPARE(subject.rows, row);

    QTest::mouseClick(subject.button, Qt::LeftButton);
    QVERIFY(subject.button->isChecked()); // it is a button, it only folds nothing
    subject.editor->setScaleExpanded(false);
    QVERIFY(subject.button->isChecked());
    QTest::mouseClick(subject.button, Qt::LeftButton);
    subject.setValue(Numbers{0, 0, 0, 2, 3});

    QVERIFY(!subject.button->isChecked());
    QVERIFY(subject.value() == DoubleMatrix3x3());
    QCOMPARE(log.take(), QStringList());
    for (int i = 0; i < subject.rows; ++i)
        QVERIFY(subject.isShown(i));
}

void tst_Transform2DPropertyEditor::setScaleExpandedWithoutHint_data()
{
    QTest::addColumn<int>("hints");
    QTest::newRow("two scales") << 0;
    QTest::newRow("uniform") << int(Uniform);
    QTest::newRow("uniform, collapsible") << int(Uniform | Collapsible);
    QTest::newRow("no scale") << int(NoScale);
}

void tst_Transform2DPropertyEditor::setScaleExpandedWithoutHint()
{
    QFETCH(int, hints);
    Subject subject(hints);
    subject.build().setValue(Numbers{0, 0, 0, 2, 3});
    const DoubleMatrix3x3 before = subject.value();
    SignalLog log(subject.editor.get());

    subject.editor->setScaleExpanded(false);

    QVERIFY(subject.editor->isScaleExpanded());
    QVERIFY(subject.value() == before);
    QCOMPARE(subject.rows, expectedRows(hints).size());
    for (int row = 0; row < subject.rows; ++row) {
        QVERIFY(subject.isShown(row));
        QCOMPARE(subject.label(row)->text(), expectedRows(hints).at(row).label);
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_Transform2DPropertyEditor::fieldsMoveAllSliders()
{
    for (int changed = 0; changed < 5; ++changed) {
        Subject subject;
        subject.build();
        subject.setValue(Numbers{0.1, -0.2, 30, 2, 4});
        for (int row = 0; row < 5; ++row) {
            const QSignalBlocker blocker(subject.slider(row));
            subject.slider(row)->setValue(7);
        }
        SignalLog log(subject.editor.get());

        subject.box(changed)->setValue(0.5678);

        QVector<int> expected{100, -200, 30000, 2000, 4000};
        expected[changed] = changed == 2 ? 570 : 567;
        QCOMPARE(subject.positions(), expected);
        QCOMPARE(log.take(), kOneValue);
    }
}

void tst_Transform2DPropertyEditor::slidersMoveAllFields()
{
    for (int changed = 0; changed < 5; ++changed) {
        Subject subject;
        subject.build();
        for (int row = 0; row < 5; ++row) {
            const QSignalBlocker blocker(subject.slider(row));
            subject.slider(row)->setValue(100 + row);
        }
        SignalLog log(subject.editor.get());

        subject.slider(changed)->setValue(321);

        QVector<double> expected{0.1, 0.101, 0.1, 0.103, 0.104};
        expected[changed] = changed == 2 ? 0.32 : 0.321;
        QCOMPARE(subject.numbers(), expected);
        QCOMPARE(log.take(), kOneValue);
    }
}

void tst_Transform2DPropertyEditor::slidersForgetTypedDigits()
{
    Subject subject;
    subject.build();
    subject.box(0)->setValue(0.1239);
    subject.box(1)->setValue(-0.1239);
    subject.box(2)->setValue(12.3456);
    QCOMPARE(subject.box(2)->value(), 12.35); // a field holds what it shows
    subject.box(3)->setValue(0.0009);

    subject.slider(4)->setValue(2000);

    QCOMPARE(subject.numbers(), (QVector<double>{0.123, -0.123, 12.35, 0.0001, 2}));
}

// 1.001 times 1000 is a little less than 1001 as a double, and its slider stands at 1000.
void tst_Transform2DPropertyEditor::truncationIsOfTheDouble()
{
    Subject subject;
    subject.build();

    subject.slider(3)->setValue(1001);
    QCOMPARE(subject.box(3)->value(), 1.001);
    subject.box(0)->setValue(0.5);
    QCOMPARE(subject.slider(3)->value(), 1000);
    subject.slider(0)->setValue(600);

    QCOMPARE(subject.box(3)->value(), 1.0);
}

void tst_Transform2DPropertyEditor::scaleSliderAtZero()
{
    Subject subject;
    subject.build();

    subject.slider(3)->setValue(0);

    QCOMPARE(subject.slider(3)->value(), 0);
    QCOMPARE(subject.box(3)->value(), 0.0001);
    QVERIFY(subject.holds({0, 0, 0, 0.0001, 1}));
}

void tst_Transform2DPropertyEditor::dragIsOneRun_data()
{
    QTest::addColumn<int>("hints");
    QTest::addColumn<int>("row");
    QTest::newRow("offset X") << 0 << 0;
    QTest::newRow("offset Y") << 0 << 1;
    QTest::newRow("rotation") << 0 << 2;
    QTest::newRow("scale X") << 0 << 3;
    QTest::newRow("scale Y") << 0 << 4;
    QTest::newRow("folded scale") << int(Collapsible) << 3;
    QTest::newRow("uniform scale") << int(Uniform) << 3;
}

void tst_Transform2DPropertyEditor::dragIsOneRun()
{
    QFETCH(int, hints);
    QFETCH(int, row);
    Subject subject(hints);
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());
    const double before = subject.box(row)->value();
    SliderDrag drag(subject.slider(row));

    drag.press();
    drag.moveBy(30);
    drag.moveBy(30);
    drag.release();

    QCOMPARE(log.take(), (QStringList{QStringLiteral("start"), QStringLiteral("value"),
                                      QStringLiteral("value"), QStringLiteral("end")}));
    QVERIFY(subject.box(row)->value() > before);
    QVERIFY(!(subject.value() == DoubleMatrix3x3()));
}

void tst_Transform2DPropertyEditor::typingIsOneRun()
{
    Subject subject;
    subject.build();
    subject.show();
    subject.slider(0)->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(subject.widget.get()));
    QTRY_VERIFY(subject.slider(0)->hasFocus());
    SignalLog log(subject.editor.get());

    subject.box(2)->setFocus();
    QTRY_VERIFY(subject.box(2)->hasFocus());
    subject.box(2)->selectAll();
    QTest::keyClicks(subject.box(2), QStringLiteral("45"));
    QCOMPARE(subject.slider(2)->value(), 45000);
    QTest::keyClick(subject.box(2), Qt::Key_Return);
    subject.slider(0)->setFocus();

    // Qt announces a confirmed number even when it is the same.
    QCOMPARE(log.take(),
             (QStringList{QStringLiteral("start"), QStringLiteral("value"), QStringLiteral("value"),
                          QStringLiteral("value"), QStringLiteral("end"), QStringLiteral("start"),
                          QStringLiteral("end")}));
    QVERIFY(subject.holds({0, 0, 45, 1, 1}));
}

void tst_Transform2DPropertyEditor::wheelMovesSlidersAlone()
{
    Subject subject;
    subject.build();
    subject.show();

    for (int row = 0; row < 5; ++row) {
        const double before = subject.box(row)->value();
        turnWheelOver(subject.box(row));
        QCOMPARE(subject.box(row)->value(), before);

        turnWheelOver(subject.slider(row));
        QVERIFY(subject.box(row)->value() > before);
    }
}

void tst_Transform2DPropertyEditor::keysStepSliders()
{
    Subject subject;
    subject.build();
    subject.show();
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.slider(2), Qt::Key_Right);
    QTest::keyClick(subject.box(0), Qt::Key_Up);

    QCOMPARE(subject.numbers(), (QVector<double>{0.02, 0, 0.36, 1, 1}));
    QCOMPARE(log.take(), kOneValue + kOneValue);
}

void tst_Transform2DPropertyEditor::echoDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("field") << 0;
    QTest::newRow("slider") << 1;
}

void tst_Transform2DPropertyEditor::echoDoesNothing()
{
    QFETCH(int, index);
    const std::unique_ptr<Subject> subject = makeEditable();
    int calls = 0;
    connect(subject->editor.get(), &PropertyEditor::valueChanged, subject->editor.get(), [&] {
        ++calls;
        subject->setValue(Numbers{0.9, 0.9, 90, 4, 4});
        subject->editor->setValue(QStringLiteral("1 0 0 0 1 0 0 0 1"));
    });

    edits().at(index).make(*subject);

    QCOMPARE(calls, 1);
    QCOMPARE(subject->box(3)->value(), 2.0);
    QCOMPARE(subject->box(4)->value(), 3.0);
    QCOMPARE(subject->box(2)->value(), 30.0);

    // Afterwards values are shown again.
    subject->setValue(Numbers{0.9, 0.9, 90, 4, 4});
    QCOMPARE(subject->numbers(), (QVector<double>{0.9, 0.9, 90, 4, 4}));
}

// Nobody is typing or dragging when the scale is folded, so an answer of the host is shown.
void tst_Transform2DPropertyEditor::echoOfFoldingIsShown()
{
    const std::unique_ptr<Subject> subject = makeEditable();
    int calls = 0;
    connect(subject->editor.get(), &PropertyEditor::valueChanged, subject->editor.get(), [&] {
        ++calls;
        subject->setValue(Numbers{0.9, 0.9, 90, 4, 4});
    });

    subject->button->click();

    QCOMPARE(calls, 1);
    QCOMPARE(subject->numbers(), (QVector<double>{0.9, 0.9, 90, 4, 4}));
    QVERIFY(!subject->editor->isScaleExpanded());
}

void tst_Transform2DPropertyEditor::hostMayUnfoldInTheCallback_data()
{
    QTest::addColumn<bool>("byClick");
    QTest::addColumn<bool>("byValue");
    QTest::newRow("clicked, a value with two scales") << true << true;
    QTest::newRow("clicked, unfolded") << true << false;
    QTest::newRow("folded by the host, unfolded") << false << false;
}

void tst_Transform2DPropertyEditor::hostMayUnfoldInTheCallback()
{
    QFETCH(bool, byClick);
    QFETCH(bool, byValue);
    const std::unique_ptr<Subject> subject = makeEditable();
    connect(subject->editor.get(), &PropertyEditor::valueChanged, subject->editor.get(), [&] {
        if (byValue)
            subject->setValue(Numbers{0.1, 0.2, 30, 2, 4});
        else
            subject->editor->setScaleExpanded(true);
    });

    if (byClick)
        subject->button->click();
    else
        subject->editor->setScaleExpanded(false);

    QVERIFY(subject->button->isChecked());
    QVERIFY(subject->isShown(4));
    QCOMPARE(subject->label(3)->text(), QStringLiteral("Scale X:"));
    QCOMPARE(subject->box(4)->value(), byValue ? 4.0 : 1.0);
}

void tst_Transform2DPropertyEditor::editorDeletedInTheCallback()
{
    QFETCH(int, index);
    const std::unique_ptr<Subject> subject = makeEditable();
    connect(subject->editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject->editor.reset(); });

    edits().at(index).make(*subject);

    QVERIFY(!subject->editor);
    subject->box(0)->setValue(0.5); // the controls outlive it
}

// A control cannot be deleted while it handles an event, but folding can be asked for by a host.
void tst_Transform2DPropertyEditor::widgetDeletedInTheCallback()
{
    const std::unique_ptr<Subject> subject = makeEditable();
    connect(subject->editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject->widget.reset(); });

    subject->editor->setScaleExpanded(false);

    QVERIFY(!subject->widget);
    subject->editor.reset();
}

void tst_Transform2DPropertyEditor::panelDeletedInTheCallback()
{
    QFETCH(int, index);
    Property property(QStringLiteral("t"), QString(), kPropertyTypeTransform2D);
    property.setHint(kPropertyHintXfrmCollapsibleScale, true);
    RecordingDelegate delegate;
    delegate.values[property.name] = QVariant::fromValue(matrixOf({0.1, 0.2, 30, 1, 3}));
    auto *const panel = new PropertyEditorPanel({&property}, &delegate, nullptr);
    const QPointer<PropertyEditorPanel> alive(panel);
    panel->updateUI();
    Subject subject; // the panel's, for as long as the edit takes
    subject.editor.reset(panel->findChild<Editor *>());
    subject.build();
    delegate.onSetValue = [&] { panel->deleteLater(); };

    edits().at(index).make(subject);
    subject.editor.release();
    subject.widget.release();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!alive);
    QCOMPARE(delegate.changes.size(), 1);
}

QTEST_MAIN(tst_Transform2DPropertyEditor)
#include "tst_Transform2DPropertyEditor.moc"
