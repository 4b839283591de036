#include "property/editors/RenderSizePropertyEditor.h"

#include "support/MarkingTranslator.h"
#include "support/SignalLog.h"
#include "support/SizeSubject.h"
#include "support/Wheel.h"

#include <QAbstractItemView>
#include <QGridLayout>

#include <limits>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kFull = 0;
constexpr int kHalf = 1;
constexpr int kQuarter = 2;
constexpr int kCustom = 3;

struct Subject : SizeSubject
{
    explicit Subject(const QVariant &fullSize, const QVariant &aspectRatio = QSize(0, 0))
        : SizeSubject(kPropertyTypeRenderSize)
    {
        setFullSize(fullSize);
        setAspectRatio(aspectRatio);
        build();
    }

    /// Picks an entry in the open list, as a user does.
    void pick(int choice)
    {
        show();
        comboBox->showPopup();
        QAbstractItemView *const list = comboBox->view();
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < choice; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_VERIFY(!list->isVisible());
    }

    bool areNumbersEnabled() const { return width->isEnabled() && height->isEnabled(); }
    bool areNumbersDisabled() const { return !width->isEnabled() && !height->isEnabled(); }
};

/// The row, column, row span and column span of a widget in the grid.
QVector<int> cellOf(const QWidget *container, QWidget *widget)
{
    const auto *const grid = qobject_cast<QGridLayout *>(container->layout());
    QVector<int> cell(4, -1);
    const int index = grid ? grid->indexOf(widget) : -1;
    if (index >= 0)
        grid->getItemPosition(index, &cell[0], &cell[1], &cell[2], &cell[3]);
    return cell;
}

/// A host's editor that decides on a hint itself.
class FullSizeEditor : public RenderSizePropertyEditor
{
public:
    using RenderSizePropertyEditor::RenderSizePropertyEditor;

    QVariant hint(const QString &key) override
    {
        return key == kPropertyHintFullSize ? QSize(8, 4) : RenderSizePropertyEditor::hint(key);
    }
};

} // namespace

/// What this editor does alike with the other editor of sizes is tested with their fields.
class tst_RenderSizePropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryMakesTheEditor();
    void slotHasItsSignature();
    void choicesUnlessTheFullSizeIsNegative_data();
    void choicesUnlessTheFullSizeIsNegative();
    void comboBoxHoldsTextsAlone();
    void textsAreTranslated();
    void gridWithChoices();
    void gridWithoutChoices();
    void widgetIsBuiltOnceAndPolished();
    void startsLockedWithItsOwnNumbers();
    void presetsDivideTheFullSize_data();
    void presetsDivideTheFullSize();
    void presetsInTheListAnnounceEachStep();
    void presetThatAgreesWithTheRatio();
    void presetWithoutRatioHintEndsEqual();
    void presetWithUndefinedRatio();
    void presetWithUncheckedRatio();
    void presetThatIsShownAlreadyEmitsOnce();
    void everyEmissionReportsTheNumbersOfItsMoment();
    void customUnlocksTheNumbers();
    void presetLocksAgain();
    void typingAfterCustomKeepsTheRatio();
    void pickingTheCurrentEntryDoesNothing();
    void anotherIndexChangesNothing();
    void slotWithoutChoicesDoesNothing();
    void setValueLeavesTheChoice();
    void fullSizeIsReadOnce();
    void hintsComeFromTheEditor();
    void wheelOverTheChoicesPicks();
    void presetEndsTheRunOfAFocusedField();
    void hostMayDeleteTheEditorAtEachEmission_data();
    void hostMayDeleteTheEditorAtEachEmission();
    void hostMayDeleteTheWidgetAtEachEmission_data();
    void hostMayDeleteTheWidgetAtEachEmission();
    void hostMayDeleteTheEditorWhenAPresetEndsARun();
};

void tst_RenderSizePropertyEditor::factoryMakesTheEditor()
{
    Property property(QStringLiteral("s"), QString(), kPropertyTypeRenderSize);
    const std::unique_ptr<PropertyEditor> editor(RenderSizePropertyEditor::Factory(&property));

    QCOMPARE(editor->metaObject()->className(), "Tessark::PropertyUI::RenderSizePropertyEditor");
    QCOMPARE(editor->metaObject()->superClass(), &PropertyEditor::staticMetaObject);
    QCOMPARE(editor->editedProperty(), &property);
}

void tst_RenderSizePropertyEditor::slotHasItsSignature()
{
    QVERIFY(RenderSizePropertyEditor::staticMetaObject.indexOfSlot("comboBoxValueChanged(int)")
            >= 0);
}

void tst_RenderSizePropertyEditor::choicesUnlessTheFullSizeIsNegative_data()
{
    QTest::addColumn<QVariant>("fullSize");
    QTest::addColumn<bool>("present");

    const int lowest = std::numeric_limits<int>::min();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("size") << QVariant(QSize(1920, 1080)) << true;
    QTest::newRow("zero") << QVariant(QSize(0, 0)) << true;
    QTest::newRow("negative height") << QVariant(QSize(5, -7)) << true;
    QTest::newRow("fractions") << QVariant(QSizeF(5.5, 7)) << true;
    QTest::newRow("not a number") << QVariant(QSizeF(nan, nan)) << true;
    QTest::newRow("no hint") << QVariant() << false;
    QTest::newRow("invalid size") << QVariant(QSize()) << false;
    QTest::newRow("negative width") << QVariant(QSize(-2, 7)) << false;
    QTest::newRow("lowest") << QVariant(QSize(lowest, lowest)) << false;
    QTest::newRow("no size") << QVariant(QStringLiteral("5x7")) << false;
}

void tst_RenderSizePropertyEditor::choicesUnlessTheFullSizeIsNegative()
{
    QFETCH(QVariant, fullSize);
    QFETCH(bool, present);
    const Subject subject(fullSize, QSize(16, 9));

    QCOMPARE(subject.comboBox != nullptr, present);
    QCOMPARE(subject.areNumbersDisabled(), present);
    QCOMPARE(subject.areNumbersEnabled(), !present);
    QCOMPARE(subject.check->isEnabled(), !present);
    QVERIFY(subject.check->isChecked());
}

void tst_RenderSizePropertyEditor::comboBoxHoldsTextsAlone()
{
    const Subject subject(QSize(1920, 1080));
    const QStringList expected{QStringLiteral("Full Resolution"), QStringLiteral("Half Resolution"),
                               QStringLiteral("Quarter Resolution"), QStringLiteral("Custom...")};
    QStringList texts;
    for (int i = 0; i < subject.comboBox->count(); ++i) {
        texts.append(subject.comboBox->itemText(i));
        QVERIFY(subject.comboBox->itemIcon(i).isNull());
        QVERIFY(!subject.comboBox->itemData(i).isValid());
    }

    QCOMPARE(texts, expected);
    QVERIFY(!subject.comboBox->isEditable());
    QVERIFY(subject.comboBox->isEnabled());
    QCOMPARE(subject.comboBox->currentIndex(), kFull);
}

void tst_RenderSizePropertyEditor::textsAreTranslated()
{
    const MarkingTranslator translator("Tessark::PropertyUI::RenderSizePropertyEditor");
    const Subject subject(QSize(1920, 1080), QSize(16, 9));

    QCOMPARE(subject.check->text(), QStringLiteral("[Constrain Aspect]"));
    QCOMPARE(subject.comboBox->itemText(kHalf), QStringLiteral("[Half Resolution]"));
    QCOMPARE(subject.comboBox->itemText(kCustom), QStringLiteral("[Custom...]"));
}

void tst_RenderSizePropertyEditor::gridWithChoices()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 9));
    QWidget *const widget = subject.widget.get();
    const auto labels = widget->findChildren<QLabel *>();

    QVERIFY(qobject_cast<QGridLayout *>(widget->layout()));
    QCOMPARE(widget->layout()->contentsMargins(), QMargins());
    QCOMPARE(cellOf(widget, subject.comboBox), (QVector<int>{0, 0, 1, 5}));
    QCOMPARE(cellOf(widget, labels.at(0)), (QVector<int>{1, 0, 1, 1}));
    QCOMPARE(cellOf(widget, subject.width), (QVector<int>{1, 1, 1, 1}));
    QCOMPARE(cellOf(widget, labels.at(1)), (QVector<int>{1, 2, 1, 1}));
    QCOMPARE(cellOf(widget, subject.height), (QVector<int>{1, 3, 1, 1}));
    QCOMPARE(cellOf(widget, subject.check), (QVector<int>{1, 4, 1, 1}));
    QCOMPARE(widget->layout()->count(), 6);
    const QSizePolicy expanding(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QCOMPARE(subject.width->sizePolicy().horizontalPolicy(), expanding.horizontalPolicy());
    QCOMPARE(subject.width->sizePolicy().verticalPolicy(), expanding.verticalPolicy());
    QCOMPARE(subject.height->sizePolicy(), subject.width->sizePolicy());
}

void tst_RenderSizePropertyEditor::gridWithoutChoices()
{
    const Subject subject(QVariant(), QSize(16, 9));
    const Subject withoutCheck(QVariant(), QSize(0, 0));
    QWidget *const widget = subject.widget.get();

    QCOMPARE(cellOf(widget, subject.width), (QVector<int>{0, 1, 1, 1}));
    QCOMPARE(cellOf(widget, subject.height), (QVector<int>{0, 3, 1, 1}));
    QCOMPARE(cellOf(widget, subject.check), (QVector<int>{0, 4, 1, 1}));
    QCOMPARE(widget->layout()->count(), 5);
    QVERIFY(!withoutCheck.check);
    QCOMPARE(withoutCheck.widget->layout()->count(), 4);
}

void tst_RenderSizePropertyEditor::widgetIsBuiltOnceAndPolished()
{
    const Subject subject(QSize(1920, 1080));

    QVERIFY(!subject.widget->parent());
    QVERIFY(subject.widget->testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QCOMPARE(int(subject.widget->findChildren<QComboBox *>().size()), 1);
}

// Only picking an entry copies the full size.
void tst_RenderSizePropertyEditor::startsLockedWithItsOwnNumbers()
{
    const Subject subject(QSize(1920, 1080));

    QCOMPARE(subject.comboBox->currentText(), QStringLiteral("Full Resolution"));
    QCOMPARE(subject.editor->value(), QVariant(QSize(1, 1)));
    QVERIFY(subject.areNumbersDisabled());
}

void tst_RenderSizePropertyEditor::presetsDivideTheFullSize_data()
{
    QTest::addColumn<QSize>("fullSize");
    QTest::addColumn<int>("choice");
    QTest::addColumn<QSize>("expected");

    const QSize screen(1920, 1080);
    QTest::newRow("full") << screen << kFull << QSize(1920, 1080);
    QTest::newRow("half") << screen << kHalf << QSize(960, 540);
    QTest::newRow("quarter") << screen << kQuarter << QSize(480, 270);
    QTest::newRow("odd half") << QSize(1001, 999) << kHalf << QSize(500, 499);
    QTest::newRow("odd quarter") << QSize(1001, 999) << kQuarter << QSize(250, 249);
    QTest::newRow("too large") << QSize(5000, 3000) << kFull << QSize(4096, 3000);
    QTest::newRow("half of too large") << QSize(5000, 3000) << kHalf << QSize(2500, 1500);
    QTest::newRow("zero") << QSize(0, 0) << kHalf << QSize(1, 1);
    QTest::newRow("below one") << QSize(3, 2) << kQuarter << QSize(1, 1);
    QTest::newRow("negative height") << QSize(300, -8) << kHalf << QSize(150, 1);
    QTest::newRow("extreme") << QSize(std::numeric_limits<int>::max(),
                                      std::numeric_limits<int>::min())
                             << kHalf << QSize(4096, 1);
}

void tst_RenderSizePropertyEditor::presetsDivideTheFullSize()
{
    QFETCH(QSize, fullSize);
    QFETCH(int, choice);
    QFETCH(QSize, expected);
    const Subject subject(fullSize);
    subject.editor->setValue(QSize(7, 7));
    subject.comboBox->setCurrentIndex(kCustom);

    for (int i = kCustom; i > choice; --i)
        QTest::keyClick(subject.comboBox, Qt::Key_Up);

    QCOMPARE(subject.comboBox->currentIndex(), choice);
    QCOMPARE(subject.editor->value(), QVariant(expected));
    QVERIFY(subject.areNumbersDisabled());
}

void tst_RenderSizePropertyEditor::presetsInTheListAnnounceEachStep()
{
    Subject subject(QSize(1920, 1080));
    SignalLog log(subject.editor.get());

    subject.pick(kHalf);
    QCOMPARE(subject.shown(), QSize(960, 540));
    QCOMPARE(log.take(), SignalLog::values(3)); // the width, the height and the choice, on purpose
    QVERIFY(subject.areNumbersDisabled());

    QTest::keyClick(subject.comboBox, Qt::Key_Down);
    QCOMPARE(subject.shown(), QSize(480, 270));
    QCOMPARE(log.take(), SignalLog::values(3));

    QTest::keyClick(subject.comboBox, Qt::Key_F); // as typing in the closed box does
    QCOMPARE(subject.shown(), QSize(1920, 1080));
    QCOMPARE(log.take(), SignalLog::values(3));
    QVERIFY(subject.areNumbersDisabled());
}

// The ratio has set the height already when its turn comes, and an unchanged number is silent.
void tst_RenderSizePropertyEditor::presetThatAgreesWithTheRatio()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 9));
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(subject.shown(), QSize(960, 540));
    QCOMPARE(log.take(), SignalLog::values(2));
    QVERIFY(!subject.check->isEnabled());
    QVERIFY(subject.check->isChecked());
}

// Width 960 pulls the height to 960, then height 540 pulls the width to 540: kept on purpose.
void tst_RenderSizePropertyEditor::presetWithoutRatioHintEndsEqual()
{
    const Subject subject(QSize(1920, 1080), QVariant());
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(subject.shown(), QSize(540, 540));
    QCOMPARE(log.take(), SignalLog::values(3));
}

void tst_RenderSizePropertyEditor::presetWithUndefinedRatio()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 0));
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(subject.shown(), QSize(960, 540));
    QCOMPARE(log.take(), SignalLog::values(3));
}

void tst_RenderSizePropertyEditor::presetWithUncheckedRatio()
{
    const Subject subject(QSize(1920, 1080), QVariant());
    subject.comboBox->setCurrentIndex(kCustom);
    subject.check->click();
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.comboBox, Qt::Key_Up);

    QCOMPARE(subject.shown(), QSize(480, 270));
    QCOMPARE(log.take(), SignalLog::values(3));
    QVERIFY(!subject.check->isChecked());
    QVERIFY(!subject.check->isEnabled());
}

void tst_RenderSizePropertyEditor::presetThatIsShownAlreadyEmitsOnce()
{
    const Subject subject(QSize(1920, 1080));
    subject.editor->setValue(QSize(960, 540));
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(subject.shown(), QSize(960, 540));
    QCOMPARE(log.take(), SignalLog::values(1));
}

void tst_RenderSizePropertyEditor::everyEmissionReportsTheNumbersOfItsMoment()
{
    const Subject subject(QSize(1920, 1080));
    QVector<QVariant> seen;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this,
            [&] { seen.append(subject.editor->value()); });

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(seen, (QVector<QVariant>{QSize(960, 1), QSize(960, 540), QSize(960, 540)}));
}

void tst_RenderSizePropertyEditor::customUnlocksTheNumbers()
{
    Subject subject(QSize(1920, 1080), QSize(16, 9));
    subject.editor->setValue(QSize(70, 80));
    SignalLog log(subject.editor.get());

    subject.pick(kCustom);

    QCOMPARE(subject.shown(), QSize(70, 80));
    QVERIFY(subject.areNumbersEnabled());
    QVERIFY(subject.check->isEnabled());
    QCOMPARE(log.take(), SignalLog::values(1));
}

void tst_RenderSizePropertyEditor::presetLocksAgain()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 9));
    subject.comboBox->setCurrentIndex(kCustom);
    QVERIFY(subject.areNumbersEnabled());

    QTest::keyClick(subject.comboBox, Qt::Key_Up);

    QCOMPARE(subject.comboBox->currentIndex(), kQuarter);
    QVERIFY(subject.areNumbersDisabled());
    QVERIFY(!subject.check->isEnabled());
}

void tst_RenderSizePropertyEditor::typingAfterCustomKeepsTheRatio()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 9));
    QTest::keyClick(subject.comboBox, Qt::Key_End);
    SignalLog log(subject.editor.get());

    SizeSubject::type(subject.width, QStringLiteral("32"));

    QCOMPARE(subject.shown(), QSize(32, 18));
    QCOMPARE(subject.comboBox->currentIndex(), kCustom);
    QCOMPARE(log.take(), SignalLog::values(2));
}

void tst_RenderSizePropertyEditor::pickingTheCurrentEntryDoesNothing()
{
    Subject subject(QSize(1920, 1080));
    SignalLog log(subject.editor.get());

    subject.pick(kFull);

    QCOMPARE(subject.shown(), QSize(1, 1));
    QCOMPARE(log.take(), QStringList());
}

void tst_RenderSizePropertyEditor::anotherIndexChangesNothing()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 9));
    subject.editor->setValue(QSize(70, 80));
    SignalLog log(subject.editor.get());

    subject.comboBox->setCurrentIndex(-1);
    QCOMPARE(log.take(), SignalLog::values(1));
    for (const int index : {-2, 4, std::numeric_limits<int>::max()}) {
        QMetaObject::invokeMethod(subject.editor.get(), "comboBoxValueChanged", Q_ARG(int, index));
        QCOMPARE(log.take(), SignalLog::values(1));
    }

    QCOMPARE(subject.shown(), QSize(70, 80));
    QVERIFY(subject.areNumbersDisabled());
}

void tst_RenderSizePropertyEditor::slotWithoutChoicesDoesNothing()
{
    const Subject subject(QVariant(), QSize(16, 9));
    SizeSubject unbuilt(kPropertyTypeRenderSize);
    unbuilt.setFullSize(QSize(1920, 1080));
    SignalLog log(subject.editor.get());
    SignalLog unbuiltLog(unbuilt.editor.get());

    for (int choice = kFull; choice <= kCustom; ++choice) {
        QMetaObject::invokeMethod(subject.editor.get(), "comboBoxValueChanged", Q_ARG(int, choice));
        QMetaObject::invokeMethod(unbuilt.editor.get(), "comboBoxValueChanged", Q_ARG(int, choice));
    }

    QCOMPARE(subject.shown(), QSize(1, 1));
    QVERIFY(subject.areNumbersEnabled());
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(unbuiltLog.take(), QStringList());
}

void tst_RenderSizePropertyEditor::setValueLeavesTheChoice()
{
    const Subject subject(QSize(1920, 1080), QSize(16, 9));
    SignalLog log(subject.editor.get());

    subject.editor->setValue(QSize(960, 540));
    QCOMPARE(subject.comboBox->currentIndex(), kFull);
    subject.editor->setValue(QSize(33, 44));

    QCOMPARE(subject.comboBox->currentIndex(), kFull);
    QCOMPARE(subject.shown(), QSize(33, 44));
    QVERIFY(subject.areNumbersDisabled());
    QCOMPARE(log.take(), QStringList());
}

void tst_RenderSizePropertyEditor::fullSizeIsReadOnce()
{
    Subject subject(QSize(1920, 1080));

    subject.setFullSize(QSize(8, 8));
    subject.editor->propertyChanged();
    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(subject.shown(), QSize(960, 540));
}

void tst_RenderSizePropertyEditor::hintsComeFromTheEditor()
{
    Property property(QStringLiteral("s"), QString(), kPropertyTypeRenderSize);
    FullSizeEditor editor(&property);
    const std::unique_ptr<QWidget> widget(editor.widget(nullptr));
    auto *const comboBox = widget->findChild<QComboBox *>();

    QVERIFY(comboBox);
    QTest::keyClick(comboBox, Qt::Key_Down);

    QCOMPARE(editor.value(), QVariant(QSize(2, 2))); // with a ratio of (-1, -1)
}

// The editor filters the events of its number fields only.
void tst_RenderSizePropertyEditor::wheelOverTheChoicesPicks()
{
    Subject subject(QSize(1920, 1080));
    subject.show();
    subject.comboBox->setCurrentIndex(kCustom);

    turnWheelOver(subject.comboBox);

    QCOMPARE(subject.comboBox->currentIndex(), kQuarter);
    QCOMPARE(subject.shown(), QSize(480, 270));
}

void tst_RenderSizePropertyEditor::presetEndsTheRunOfAFocusedField()
{
    Subject subject(QSize(1920, 1080));
    subject.comboBox->setCurrentIndex(kCustom);
    subject.show();
    subject.height->setFocus();
    QVERIFY(subject.height->hasFocus());
    SignalLog log(subject.editor.get());

    subject.comboBox->setCurrentIndex(kHalf);

    QCOMPARE(log.take(), (QStringList{QStringLiteral("value"), QStringLiteral("value"),
                                      QStringLiteral("end"), QStringLiteral("value")}));
    QVERIFY(!subject.height->hasFocus());
}

void tst_RenderSizePropertyEditor::hostMayDeleteTheEditorAtEachEmission_data()
{
    QTest::addColumn<int>("emission");
    QTest::addColumn<QSize>("shown");

    QTest::newRow("the width's") << 1 << QSize(960, 1);
    QTest::newRow("the height's") << 2 << QSize(960, 540);
    QTest::newRow("the choice's") << 3 << QSize(960, 540);
}

void tst_RenderSizePropertyEditor::hostMayDeleteTheEditorAtEachEmission()
{
    QFETCH(int, emission);
    Subject subject(QSize(1920, 1080));
    int emissions = 0;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp, [&] {
        if (++emissions == emission)
            subject.editor.reset();
    });

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QVERIFY(!subject.editor);
    QCOMPARE(emissions, emission);
    QTEST(subject.shown(), "shown");
    QCOMPARE(subject.comboBox->currentIndex(), kHalf);
}

void tst_RenderSizePropertyEditor::hostMayDeleteTheWidgetAtEachEmission_data()
{
    QTest::addColumn<int>("emission");
    for (int emission = 1; emission <= 3; ++emission)
        QTest::addRow("emission %d", emission) << emission;
}

void tst_RenderSizePropertyEditor::hostMayDeleteTheWidgetAtEachEmission()
{
    QFETCH(int, emission);
    Subject subject(QSize(1920, 1080));
    int emissions = 0;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp, [&] {
        if (++emissions == emission)
            subject.widget.reset();
    });

    // Not by a key: the combo box would still be at work when it goes.
    QMetaObject::invokeMethod(subject.editor.get(), "comboBoxValueChanged", Q_ARG(int, kHalf));

    QVERIFY(!subject.widget);
    QCOMPARE(emissions, emission);
}

void tst_RenderSizePropertyEditor::hostMayDeleteTheEditorWhenAPresetEndsARun()
{
    for (const bool inWidth : {true, false}) {
        Subject subject(QSize(1920, 1080), QSize(16, 9));
        subject.comboBox->setCurrentIndex(kCustom);
        subject.show();
        (inWidth ? subject.width : subject.height)->setFocus();
        connect(subject.editor.get(), &PropertyEditor::endInteractiveChange, qApp,
                [&] { subject.editor.reset(); });

        subject.comboBox->setCurrentIndex(kHalf);

        QVERIFY(!subject.editor);
        QCOMPARE(subject.shown(), QSize(960, 540));
    }
}

QTEST_MAIN(tst_RenderSizePropertyEditor)
#include "tst_RenderSizePropertyEditor.moc"
