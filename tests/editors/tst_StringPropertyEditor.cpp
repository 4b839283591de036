#include "property/editors/StringPropertyEditor.h"

#include "support/BoolHintRows.h"
#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QLineEdit>
#include <QPointer>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Fixture : EditorFixture<StringPropertyEditor, QLineEdit>
{
    Fixture()
        : EditorFixture(kPropertyTypeString)
    {
    }
};

} // namespace

class tst_StringPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAnEmptyLine();
    void valueBeforeTheWidgetIsEmpty();
    void enabledHint_data();
    void enabledHint();
    void enabledHintIsReadAgain_data();
    void enabledHintIsReadAgain();
    void setValueShowsText_data();
    void setValueShowsText();
    void setValueIsSilent();
    void setValueBlocksNothing();
    void typingEmitsNothing();
    void confirmingEmitsOnce_data();
    void confirmingEmitsOnce();
    void leavingTheFieldEmitsOnce();
    void revertShowsTheDefaultAndEmitsOnce();
    void editorMayDieWhenAnEditIsFinished();
    void fieldMayDieLaterWhenAnEditIsFinished();
    void editorMayDieWhileItReverts();
};

void tst_StringPropertyEditor::showsAnEmptyLine()
{
    Fixture string;

    const QLineEdit *field = string.build();

    QVERIFY(field);
    QCOMPARE(field->metaObject(), &QLineEdit::staticMetaObject);
    QCOMPARE(field->text(), QString());
    QCOMPARE(string.editor->value().userType(), int(QMetaType::QString));
}

void tst_StringPropertyEditor::valueBeforeTheWidgetIsEmpty()
{
    Fixture string;

    string.editor->setValue(QStringLiteral("early"));
    string.editor->propertyChanged();

    QCOMPARE(string.editor->value().userType(), int(QMetaType::QString));
    QCOMPARE(string.editor->value().toString(), QString());
    QCOMPARE(string.build()->text(), QString());
}

void tst_StringPropertyEditor::enabledHint_data()
{
    addBoolHintRows(true);
}

void tst_StringPropertyEditor::enabledHint()
{
    QFETCH(bool, expected);
    Fixture string;
    applyBoolHintRow(string.property, kPropertyHintEnabled);

    QCOMPARE(string.build()->isEnabled(), expected);
}

void tst_StringPropertyEditor::enabledHintIsReadAgain_data()
{
    addBoolHintRows(true);
}

void tst_StringPropertyEditor::enabledHintIsReadAgain()
{
    QFETCH(bool, expected);
    Fixture string;
    string.property.setHint(kPropertyHintEnabled, !expected);
    const QLineEdit *field = string.build();
    QCOMPARE(field->isEnabled(), !expected);
    SignalLog log(string.editor.get());

    string.property.hints.clear();
    applyBoolHintRow(string.property, kPropertyHintEnabled);
    QCOMPARE(field->isEnabled(), !expected);
    string.editor->propertyChanged();

    QCOMPARE(field->isEnabled(), expected);
    QCOMPARE(log.take(), QStringList());
}

void tst_StringPropertyEditor::setValueShowsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral("abc")) << QStringLiteral("abc");
    QTest::newRow("whole number") << QVariant(42) << QStringLiteral("42");
    QTest::newRow("decimal number") << QVariant(0.5) << QStringLiteral("0.5");
    QTest::newRow("bool") << QVariant(true) << QStringLiteral("true");
    QTest::newRow("invalid") << QVariant() << QString();
    QTest::newRow("unconvertible") << QVariant(QSize(1, 1)) << QString();
}

void tst_StringPropertyEditor::setValueShowsText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    Fixture string;
    QLineEdit *field = string.build();
    field->setText(QStringLiteral("before"));

    string.editor->setValue(value);

    QCOMPARE(field->text(), text);
    QCOMPARE(string.editor->value(), QVariant(text));
    QCOMPARE(string.editor->value().userType(), int(QMetaType::QString));
}

void tst_StringPropertyEditor::setValueIsSilent()
{
    Fixture string;
    string.build();
    SignalLog log(string.editor.get());

    string.editor->setValue(QStringLiteral("abc"));
    string.editor->setValue(QStringLiteral("def"));

    QCOMPARE(log.take(), QStringList());
}

// A host that watches the field sees programmatic changes too.
void tst_StringPropertyEditor::setValueBlocksNothing()
{
    Fixture string;
    const QLineEdit *field = string.build();
    int changes = 0;
    connect(field, &QLineEdit::textChanged, this, [&changes] { ++changes; });

    string.editor->setValue(QStringLiteral("abc"));

    QCOMPARE(changes, 1);
}

void tst_StringPropertyEditor::typingEmitsNothing()
{
    Fixture string;
    QLineEdit *field = string.build();
    SignalLog log(string.editor.get());

    QTest::keyClicks(field, QStringLiteral("abc"));

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(string.editor->value(), QVariant(QStringLiteral("abc")));
}

void tst_StringPropertyEditor::confirmingEmitsOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_StringPropertyEditor::confirmingEmitsOnce()
{
    QFETCH(int, key);
    Fixture string;
    QLineEdit *field = string.build();
    QTest::keyClicks(field, QStringLiteral("abc"));
    SignalLog log(string.editor.get());

    QTest::keyClick(field, Qt::Key(key));

    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(string.editor->value(), QVariant(QStringLiteral("abc")));
}

void tst_StringPropertyEditor::leavingTheFieldEmitsOnce()
{
    Fixture string;
    QWidget window;
    QLineEdit other(&window);
    QLineEdit *field = string.build();
    field->setParent(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    QVERIFY(field->hasFocus());
    SignalLog log(string.editor.get());

    QTest::keyClicks(field, QStringLiteral("abc"));
    QCOMPARE(log.take(), QStringList());
    other.setFocus();

    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    field->setParent(nullptr);
}

void tst_StringPropertyEditor::revertShowsTheDefaultAndEmitsOnce()
{
    Fixture string;
    string.property.setDefaultValue(QStringLiteral("default"));
    const QLineEdit *field = string.build();
    SignalLog log(string.editor.get());

    string.editor->revertToDefaultValue();

    QCOMPARE(field->text(), QStringLiteral("default"));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_StringPropertyEditor::editorMayDieWhenAnEditIsFinished()
{
    Fixture string;
    QLineEdit *field = string.build();
    connect(string.editor.get(), &PropertyEditor::valueChanged, this,
            [&string] { string.editor.reset(); });

    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!string.editor);
    QTest::keyClick(field, Qt::Key_Return);
}

void tst_StringPropertyEditor::fieldMayDieLaterWhenAnEditIsFinished()
{
    Fixture string;
    const QPointer<QLineEdit> field = string.build();
    connect(string.editor.get(), &PropertyEditor::valueChanged, this,
            [&string] { string.deleteLater(); });

    QTest::keyClick(field.data(), Qt::Key_Return);

    QTRY_VERIFY(!field);
}

// The field's own signals are not blocked, so a host that listens to them may delete the editor
// before it comes to emit.
void tst_StringPropertyEditor::editorMayDieWhileItReverts()
{
    Fixture string;
    string.property.setDefaultValue(QStringLiteral("default"));
    const QLineEdit *field = string.build();
    SignalLog log(string.editor.get());
    connect(field, &QLineEdit::textChanged, this, [&string] { string.editor.reset(); });

    string.editor->revertToDefaultValue();

    QVERIFY(!string.editor);
    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_StringPropertyEditor)
#include "tst_StringPropertyEditor.moc"
