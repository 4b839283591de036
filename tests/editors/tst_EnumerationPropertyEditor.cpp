#include "property/editors/EnumerationPropertyEditor.h"

#include "support/SignalLog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;

namespace {

const QStringList kTexts{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};

struct Subject
{
    explicit Subject(const QVariant &texts = kTexts, const QVariant &stored = QVariant())
        : property(QStringLiteral("choice"), QStringLiteral("Choice"), kPropertyTypeEnumeration)
    {
        property.setHint(kPropertyHintDisplayValues, texts);
        if (stored.isValid())
            property.setHint(kPropertyHintValues, stored);
    }

    /// Built at once, in one of the two modes.
    Subject(const QVariant &texts, const QVariant &stored, bool radio)
        : Subject(texts, stored)
    {
        if (radio)
            asRadioButtons();
        build();
    }

    // The editor knows the property by its address.
    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    Subject &asRadioButtons()
    {
        property.setHint(kPropertyHintWidget, kWidgetTypeRadioButtons);
        return *this;
    }

    void build()
    {
        editor = std::make_unique<EnumerationPropertyEditor>(&property);
        widget.reset(editor->widget(nullptr));
        comboBox = qobject_cast<QComboBox *>(widget.get());
        buttons = widget->findChildren<QRadioButton *>();
    }

    QStringList texts() const
    {
        QStringList result;
        for (int i = 0; comboBox && i < comboBox->count(); ++i)
            result.append(comboBox->itemText(i));
        for (const QRadioButton *button : buttons)
            result.append(button->text());
        return result;
    }

    int checkedButton() const
    {
        for (int i = 0; i < buttons.size(); ++i) {
            if (buttons.at(i)->isChecked())
                return i;
        }
        return -1;
    }

    int shown() const { return comboBox ? comboBox->currentIndex() : checkedButton(); }

    Property property;
    std::unique_ptr<EnumerationPropertyEditor> editor;
    std::unique_ptr<QWidget> widget;
    QComboBox *comboBox = nullptr;
    QList<QRadioButton *> buttons;
};

void addModes()
{
    QTest::addColumn<bool>("radio");
    QTest::newRow("combo box") << false;
    QTest::newRow("radio buttons") << true;
}

} // namespace

class tst_EnumerationPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHint_data();
    void widgetHint();
    void displayValues_data();
    void displayValues();
    void comboBoxHoldsTextsAlone();
    void radioButtonsStandInOneRow();
    void groupBelongsToTheEditor();
    void widgetIsBuiltOnceAndPolished_data() { addModes(); }
    void widgetIsBuiltOnceAndPolished();
    void indexWithoutStoredValues_data() { addModes(); }
    void indexWithoutStoredValues();
    void storedValues_data() { addModes(); }
    void storedValues();
    void unknownStoredValueChangesNothing_data() { addModes(); }
    void unknownStoredValueChangesNothing();
    void storedValuesOfAnyType();
    void fewerStoredValuesThanTexts_data() { addModes(); }
    void fewerStoredValuesThanTexts();
    void storedValuesAreReadAfresh_data() { addModes(); }
    void storedValuesAreReadAfresh();
    void plainTextAsStoredValuesIsEmpty_data() { addModes(); }
    void plainTextAsStoredValuesIsEmpty();
    void noTexts_data() { addModes(); }
    void noTexts();
    void nothingChosenYet();
    void indexOutside();
    void unconvertibleIndexIsTheFirst_data() { addModes(); }
    void unconvertibleIndexIsTheFirst();
    void setValueIsSilent_data() { addModes(); }
    void setValueIsSilent();
    void choiceInTheComboBoxEmitsOnce();
    void clickOnAButtonEmitsEachTime();
    void isHarmlessBeforeItsWidget();
    void revertsToDefault_data() { addModes(); }
    void revertsToDefault();
    void editorDeletedInTheCallback_data() { addModes(); }
    void editorDeletedInTheCallback();

private:
    // In the mode of the row.
    static Subject made(const QVariant &texts = kTexts, const QVariant &stored = QVariant());
};

Subject tst_EnumerationPropertyEditor::made(const QVariant &texts, const QVariant &stored)
{
    QFETCH(bool, radio);
    return Subject(texts, stored, radio);
}

void tst_EnumerationPropertyEditor::widgetHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<bool>("radio");

    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("radio buttons") << QVariant(kWidgetTypeRadioButtons) << true;
    QTest::newRow("another widget type") << QVariant(kWidgetTypeSlider) << false;
    QTest::newRow("other case") << QVariant(QStringLiteral("Radio_Buttons")) << false;
    QTest::newRow("number") << QVariant(1) << false;
}

void tst_EnumerationPropertyEditor::widgetHint()
{
    QFETCH(QVariant, hint);
    QFETCH(bool, radio);
    Subject subject;
    subject.property.setHint(kPropertyHintWidget, hint);
    subject.build();

    QCOMPARE(subject.comboBox == nullptr, radio);
    QCOMPARE(int(subject.buttons.size()), radio ? 3 : 0);
}

void tst_EnumerationPropertyEditor::displayValues_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("texts") << QVariant(kTexts) << kTexts;
    QTest::newRow("variants") << QVariant(QVariantList{1, 2.5, QStringLiteral("x")})
                              << QStringList{QStringLiteral("1"), QStringLiteral("2.5"),
                                             QStringLiteral("x")};
    QTest::newRow("repeated") << QVariant(QStringList{QStringLiteral("A"), QStringLiteral("A")})
                              << QStringList{QStringLiteral("A"), QStringLiteral("A")};
    QTest::newRow("empty") << QVariant(QStringList()) << QStringList();
    QTest::newRow("invalid") << QVariant() << QStringList();
    QTest::newRow("a plain text is no list") << QVariant(QStringLiteral("ABC")) << QStringList();
    QTest::newRow("nor a byte array") << QVariant(QByteArrayLiteral("ABC")) << QStringList();
    QTest::newRow("nor a number") << QVariant(3) << QStringList();
}

void tst_EnumerationPropertyEditor::displayValues()
{
    QFETCH(QVariant, hint);
    QFETCH(QStringList, texts);
    Subject combo(hint);
    combo.build();
    Subject radio(hint);
    radio.asRadioButtons().build();

    QCOMPARE(combo.texts(), texts);
    QCOMPARE(radio.texts(), texts);
}

void tst_EnumerationPropertyEditor::comboBoxHoldsTextsAlone()
{
    Subject subject;
    subject.build();

    QVERIFY(!subject.widget->parent());
    QVERIFY(!subject.comboBox->isEditable());
    QVERIFY(subject.comboBox->itemIcon(1).isNull());
    QVERIFY(!subject.comboBox->itemData(1).isValid());
}

void tst_EnumerationPropertyEditor::radioButtonsStandInOneRow()
{
    Subject subject;
    subject.property.setHint(kPropertyHintOrientation, int(Qt::Vertical));
    subject.asRadioButtons().build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());
    QWidget plain;
    const QHBoxLayout fresh(&plain);

    QVERIFY(layout);
    QVERIFY(!subject.widget->parent());
    QCOMPARE(layout->contentsMargins(), fresh.contentsMargins());
    QCOMPARE(layout->count(), 4);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), subject.buttons.at(i));
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
    QVERIFY(layout->itemAt(3)->spacerItem());
    QCOMPARE(layout->stretch(3), 0);
}

void tst_EnumerationPropertyEditor::groupBelongsToTheEditor()
{
    Subject subject;
    subject.asRadioButtons().build();
    const auto *const group = subject.editor->findChild<QButtonGroup *>();

    QVERIFY(group);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(group->id(subject.buttons.at(i)), i);
}

void tst_EnumerationPropertyEditor::widgetIsBuiltOnceAndPolished()
{
    const Subject subject = made();

    QVERIFY(subject.widget->testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
}

void tst_EnumerationPropertyEditor::indexWithoutStoredValues()
{
    const Subject subject = made();

    subject.editor->setValue(2);

    QCOMPARE(subject.shown(), 2);
    QCOMPARE(subject.editor->value(), QVariant(2));
    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::Int));
    subject.editor->setValue(QStringLiteral("1"));
    QCOMPARE(subject.shown(), 1);
}

void tst_EnumerationPropertyEditor::storedValues()
{
    const Subject subject = made(kTexts, QVariantList{10, 20, 30});

    subject.editor->setValue(20);

    QCOMPARE(subject.shown(), 1);
    QCOMPARE(subject.editor->value(), QVariant(20));
}

void tst_EnumerationPropertyEditor::unknownStoredValueChangesNothing()
{
    const Subject subject = made(kTexts, QVariantList{10, 20, 30});
    subject.editor->setValue(20);

    for (const QVariant &value : {QVariant(15), QVariant(), QVariant(QStringLiteral("x"))})
        subject.editor->setValue(value);

    QCOMPARE(subject.shown(), 1);
}

void tst_EnumerationPropertyEditor::storedValuesOfAnyType()
{
    Subject subject(kTexts, QVariantList{QStringLiteral("low"), 2.5, QSize(1, 2)});
    subject.build();

    subject.editor->setValue(QSize(1, 2));
    QCOMPARE(subject.shown(), 2);
    QCOMPARE(subject.editor->value(), QVariant(QSize(1, 2)));
    subject.editor->setValue(QStringLiteral("low"));
    QCOMPARE(subject.editor->value(), QVariant(QStringLiteral("low")));
}

void tst_EnumerationPropertyEditor::fewerStoredValuesThanTexts()
{
    const Subject subject = made(kTexts, QVariantList{10});
    if (subject.comboBox)
        subject.comboBox->setCurrentIndex(2);
    else
        subject.buttons.at(2)->click();

    QCOMPARE(subject.shown(), 2);
    QVERIFY(!subject.editor->value().isValid());
}

void tst_EnumerationPropertyEditor::storedValuesAreReadAfresh()
{
    Subject subject = made(kTexts, QVariantList{10, 20, 30});
    subject.editor->setValue(20);

    subject.property.setHint(kPropertyHintValues, QVariantList{1, 2, 3});

    QCOMPARE(subject.editor->value(), QVariant(2));
    subject.editor->setValue(3);
    QCOMPARE(subject.shown(), 2);
}

void tst_EnumerationPropertyEditor::plainTextAsStoredValuesIsEmpty()
{
    const Subject subject = made(kTexts, QStringLiteral("012"));
    const int before = subject.shown();

    subject.editor->setValue(QStringLiteral("1"));
    subject.editor->setValue(1);

    QCOMPARE(subject.shown(), before);
    QVERIFY(!subject.editor->value().isValid());
}

void tst_EnumerationPropertyEditor::noTexts()
{
    const Subject plain = made(QVariant());
    const Subject stored = made(QVariant(), QVariantList{10, 20});

    plain.editor->setValue(1);
    stored.editor->setValue(20);

    QCOMPARE(plain.texts(), QStringList());
    QCOMPARE(plain.editor->value(), QVariant(-1));
    QVERIFY(!stored.editor->value().isValid());
}

void tst_EnumerationPropertyEditor::nothingChosenYet()
{
    Subject plain;
    plain.asRadioButtons().build();
    Subject stored(kTexts, QVariantList{10, 20, 30});
    stored.asRadioButtons().build();

    QCOMPARE(plain.checkedButton(), -1);
    QCOMPARE(plain.editor->value(), QVariant(-1));
    QVERIFY(!stored.editor->value().isValid());
}

void tst_EnumerationPropertyEditor::indexOutside()
{
    Subject combo;
    combo.build();
    Subject radio;
    radio.asRadioButtons().build();

    for (const int index : {-1, 3, 1000000}) {
        combo.editor->setValue(1);
        radio.editor->setValue(1);

        combo.editor->setValue(index);
        radio.editor->setValue(index);

        QCOMPARE(combo.comboBox->currentIndex(), -1); // as the toolkit has it
        QCOMPARE(combo.editor->value(), QVariant(-1));
        QCOMPARE(radio.checkedButton(), 1); // ignored
    }
}

void tst_EnumerationPropertyEditor::unconvertibleIndexIsTheFirst()
{
    const Subject subject = made();
    for (const QVariant &value : {QVariant(), QVariant(QStringLiteral("B"))}) {
        subject.editor->setValue(2);
        subject.editor->setValue(value);

        QCOMPARE(subject.shown(), 0);
    }
}

void tst_EnumerationPropertyEditor::setValueIsSilent()
{
    const Subject subject = made();
    SignalLog log(subject.editor.get());

    subject.editor->setValue(2);
    subject.editor->setValue(0);

    QCOMPARE(log.take(), QStringList());
    QVERIFY(!subject.widget->signalsBlocked());
}

void tst_EnumerationPropertyEditor::choiceInTheComboBoxEmitsOnce()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.comboBox, Qt::Key_Down);

    QCOMPARE(subject.editor->value(), QVariant(1));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_EnumerationPropertyEditor::clickOnAButtonEmitsEachTime()
{
    Subject subject;
    subject.asRadioButtons().build();
    subject.widget->show();
    SignalLog log(subject.editor.get());

    QTest::mouseClick(subject.buttons.at(1), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QCOMPARE(subject.editor->value(), QVariant(1));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});

    QTest::mouseClick(subject.buttons.at(1), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_EnumerationPropertyEditor::isHarmlessBeforeItsWidget()
{
    Property property(QStringLiteral("e"), QString(), kPropertyTypeEnumeration);
    EnumerationPropertyEditor editor(&property);

    editor.setValue(1);
    editor.propertyChanged();

    QCOMPARE(editor.value(), QVariant(-1));
    property.setHint(kPropertyHintValues, QVariantList{1, 2});
    QVERIFY(!editor.value().isValid());
}

void tst_EnumerationPropertyEditor::revertsToDefault()
{
    Subject subject = made();
    subject.property.setDefaultValue(1);
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.shown(), 1);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_EnumerationPropertyEditor::editorDeletedInTheCallback()
{
    Subject subject = made();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.release()->deleteLater(); });

    if (subject.comboBox)
        QTest::keyClick(subject.comboBox, Qt::Key_Down);
    else
        subject.buttons.at(1)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!subject.editor);
    QCOMPARE(subject.shown(), 1);
}

QTEST_MAIN(tst_EnumerationPropertyEditor)
#include "tst_EnumerationPropertyEditor.moc"
