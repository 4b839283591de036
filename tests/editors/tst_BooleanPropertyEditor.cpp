#include "property/editors/BooleanPropertyEditor.h"

#include "support/BoolHintRows.h"
#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QCheckBox>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Fixture : EditorFixture<BooleanPropertyEditor, QCheckBox>
{
    Fixture()
        : EditorFixture(kPropertyTypeBoolean)
    {
    }
};

} // namespace

class tst_BooleanPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAnUncheckedBox();
    void valueBeforeTheWidgetIsFalse();
    void hideLabelHint_data();
    void hideLabelHint();
    void hideLabelHintIsReadOnce();
    void enabledHint_data();
    void enabledHint();
    void enabledHintIsReadAgain_data();
    void enabledHintIsReadAgain();
    void propertyChangedEmitsNothing();
    void setValueConverts_data();
    void setValueConverts();
    void setValueIsSilent();
    void setValueLeavesOtherListenersConnected();
    void clickEmitsOnce();
    void clickOnADisabledBoxEmitsNothing();
    void revertChecksAndEmitsOnce();
    void editorMayDieInAClick();
    void boxMayDieLaterOnAClick();
};

void tst_BooleanPropertyEditor::showsAnUncheckedBox()
{
    Fixture boolean;

    const QCheckBox *box = boolean.build();

    QVERIFY(box);
    QCOMPARE(box->metaObject(), &QCheckBox::staticMetaObject);
    QVERIFY(!box->isChecked());
    QVERIFY(!box->isTristate());
    QCOMPARE(boolean.editor->value(), QVariant(false));
}

void tst_BooleanPropertyEditor::valueBeforeTheWidgetIsFalse()
{
    Fixture boolean;

    boolean.editor->setValue(true);
    boolean.editor->propertyChanged();

    QCOMPARE(boolean.editor->value(), QVariant(false));
    QVERIFY(!boolean.build()->isChecked());
}

void tst_BooleanPropertyEditor::hideLabelHint_data()
{
    addBoolHintRows(false);
}

void tst_BooleanPropertyEditor::hideLabelHint()
{
    QFETCH(bool, expected);
    Fixture boolean;
    applyBoolHintRow(boolean.property, kPropertyHintBoolHideLabel);

    const QCheckBox *box = boolean.build();

    QCOMPARE(box->text(), expected ? QString() : QStringLiteral("Label"));
}

void tst_BooleanPropertyEditor::hideLabelHintIsReadOnce()
{
    Fixture boolean;
    const QCheckBox *box = boolean.build();

    boolean.property.setHint(kPropertyHintBoolHideLabel, true);
    boolean.editor->propertyChanged();

    QCOMPARE(box->text(), QStringLiteral("Label"));
}

void tst_BooleanPropertyEditor::enabledHint_data()
{
    addBoolHintRows(true);
}

void tst_BooleanPropertyEditor::enabledHint()
{
    QFETCH(bool, expected);
    Fixture boolean;
    applyBoolHintRow(boolean.property, kPropertyHintEnabled);

    QCOMPARE(boolean.build()->isEnabled(), expected);
}

void tst_BooleanPropertyEditor::enabledHintIsReadAgain_data()
{
    addBoolHintRows(true);
}

void tst_BooleanPropertyEditor::enabledHintIsReadAgain()
{
    QFETCH(bool, expected);
    Fixture boolean;
    boolean.property.setHint(kPropertyHintEnabled, !expected);
    const QCheckBox *box = boolean.build();
    QCOMPARE(box->isEnabled(), !expected);

    boolean.property.hints.clear();
    applyBoolHintRow(boolean.property, kPropertyHintEnabled);
    QCOMPARE(box->isEnabled(), !expected);
    boolean.editor->propertyChanged();

    QCOMPARE(box->isEnabled(), expected);
}

void tst_BooleanPropertyEditor::propertyChangedEmitsNothing()
{
    Fixture boolean;
    boolean.build();
    boolean.editor->setValue(true);
    SignalLog log(boolean.editor.get());

    boolean.property.setHint(kPropertyHintEnabled, false);
    boolean.editor->propertyChanged();

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(boolean.editor->value(), QVariant(true));
}

void tst_BooleanPropertyEditor::setValueConverts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("checked");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("one") << QVariant(1) << true;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("text 'false'") << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("unconvertible") << QVariant(QSize(1, 1)) << false;
}

void tst_BooleanPropertyEditor::setValueConverts()
{
    QFETCH(QVariant, value);
    QFETCH(bool, checked);
    Fixture boolean;
    QCheckBox *box = boolean.build();
    box->setChecked(!checked);

    boolean.editor->setValue(value);

    QCOMPARE(box->isChecked(), checked);
    QCOMPARE(boolean.editor->value(), QVariant(checked));
}

void tst_BooleanPropertyEditor::setValueIsSilent()
{
    Fixture boolean;
    const QCheckBox *box = boolean.build();
    SignalLog log(boolean.editor.get());
    QSignalSpy toggled(box, &QCheckBox::toggled);

    boolean.editor->setValue(true);
    boolean.editor->setValue(false);

    QCOMPARE(log.take(), QStringList());
    QVERIFY(toggled.isEmpty());
}

void tst_BooleanPropertyEditor::setValueLeavesOtherListenersConnected()
{
    Fixture boolean;
    QCheckBox *box = boolean.build();
    boolean.editor->setValue(true);
    QSignalSpy toggled(box, &QCheckBox::toggled);

    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(5, box->height() / 2));

    QCOMPARE(toggled.count(), 1);
}

void tst_BooleanPropertyEditor::clickEmitsOnce()
{
    Fixture boolean;
    QCheckBox *box = boolean.build();
    SignalLog log(boolean.editor.get());
    const QPoint indicator(5, box->height() / 2);

    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, indicator);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(boolean.editor->value(), QVariant(true));

    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, indicator);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(boolean.editor->value(), QVariant(false));
}

void tst_BooleanPropertyEditor::clickOnADisabledBoxEmitsNothing()
{
    Fixture boolean;
    boolean.property.setHint(kPropertyHintEnabled, false);
    QCheckBox *box = boolean.build();
    SignalLog log(boolean.editor.get());

    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(5, box->height() / 2));

    QCOMPARE(log.take(), QStringList());
    QVERIFY(!box->isChecked());
}

void tst_BooleanPropertyEditor::revertChecksAndEmitsOnce()
{
    Fixture boolean;
    boolean.property.setDefaultValue(true);
    const QCheckBox *box = boolean.build();
    SignalLog log(boolean.editor.get());

    boolean.editor->revertToDefaultValue();

    QVERIFY(box->isChecked());
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_BooleanPropertyEditor::editorMayDieInAClick()
{
    Fixture boolean;
    QCheckBox *box = boolean.build();
    connect(boolean.editor.get(), &PropertyEditor::valueChanged, this,
            [&boolean] { boolean.editor.reset(); });

    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(!boolean.editor);
    QTest::keyClick(box, Qt::Key_Space);
}

void tst_BooleanPropertyEditor::boxMayDieLaterOnAClick()
{
    Fixture boolean;
    const QPointer<QCheckBox> box = boolean.build();
    connect(boolean.editor.get(), &PropertyEditor::valueChanged, this,
            [&boolean] { boolean.deleteLater(); });

    QTest::keyClick(box.data(), Qt::Key_Space);

    QTRY_VERIFY(!box);
}

QTEST_MAIN(tst_BooleanPropertyEditor)
#include "tst_BooleanPropertyEditor.moc"
