#include "property/editors/TextPropertyEditor.h"

#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSize>
#include <QTest>
#include <QTextDocument>

using namespace Tessark::PropertyUI;

namespace {

struct Fixture : EditorFixture<TextPropertyEditor, QPlainTextEdit>
{
    Fixture()
        : EditorFixture(kPropertyTypeText)
    {
    }
};

} // namespace

class tst_TextPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAnEmptyField();
    void valueBeforeTheWidgetIsEmpty();
    void fontIsFixedPitch();
    void setValueShowsText_data();
    void setValueShowsText();
    void setValueIsSilent();
    void typingEmitsNothing();
    void focusEmitsNothing();
    void readsNoHints();
    void revertShowsTheDefaultAndEmitsOnce();
};

void tst_TextPropertyEditor::showsAnEmptyField()
{
    Fixture text;

    const QPlainTextEdit *field = text.build();

    QVERIFY(field);
    QCOMPARE(field->metaObject(), &QPlainTextEdit::staticMetaObject);
    QCOMPARE(field->minimumHeight(), 400);
    QVERIFY(!field->isReadOnly());
    QVERIFY(!field->textCursor().hasSelection());
    QCOMPARE(text.editor->value(), QVariant(QString()));
}

void tst_TextPropertyEditor::valueBeforeTheWidgetIsEmpty()
{
    Fixture text;

    text.editor->setValue(QStringLiteral("early"));

    QCOMPARE(text.editor->value().userType(), int(QMetaType::QString));
    QCOMPARE(text.editor->value().toString(), QString());
    QCOMPARE(text.build()->toPlainText(), QString());
}

void tst_TextPropertyEditor::fontIsFixedPitch()
{
    Fixture text;

    const QPlainTextEdit *field = text.build();

    for (const QFont &font : {field->font(), field->document()->defaultFont()}) {
        QCOMPARE(font.family(), QStringLiteral("monospace"));
        QCOMPARE(font.pointSize(), 16);
        QVERIFY(font.fixedPitch());
        QVERIFY(!font.italic());
        QCOMPARE(int(font.weight()), int(QFont::Normal));
    }
}

void tst_TextPropertyEditor::setValueShowsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral("abc")) << QStringLiteral("abc");
    QTest::newRow("lines") << QVariant(QStringLiteral("a\nb\n")) << QStringLiteral("a\nb\n");
    QTest::newRow("markup stays text")
        << QVariant(QStringLiteral("<b>a</b>")) << QStringLiteral("<b>a</b>");
    QTest::newRow("number") << QVariant(42) << QStringLiteral("42");
    QTest::newRow("invalid") << QVariant() << QString();
    QTest::newRow("unconvertible") << QVariant(QSize(1, 1)) << QString();
}

void tst_TextPropertyEditor::setValueShowsText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    Fixture fixture;
    QPlainTextEdit *field = fixture.build();
    field->setPlainText(QStringLiteral("before"));

    fixture.editor->setValue(value);

    QCOMPARE(field->toPlainText(), text);
    QCOMPARE(fixture.editor->value(), QVariant(text));
    QCOMPARE(fixture.editor->value().userType(), int(QMetaType::QString));
}

void tst_TextPropertyEditor::setValueIsSilent()
{
    Fixture text;
    const QPlainTextEdit *field = text.build();
    SignalLog log(text.editor.get());
    QSignalSpy changed(field, &QPlainTextEdit::textChanged);

    text.editor->setValue(QStringLiteral("abc"));

    QCOMPARE(log.take(), QStringList());
    QVERIFY(changed.isEmpty());
}

// Deliberate: the host reads value() when it wants the text.
void tst_TextPropertyEditor::typingEmitsNothing()
{
    Fixture text;
    QPlainTextEdit *field = text.build();
    SignalLog log(text.editor.get());
    QSignalSpy changed(field, &QPlainTextEdit::textChanged);

    QTest::keyClicks(field, QStringLiteral("ab"));
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClicks(field, QStringLiteral("c"));

    QVERIFY(!changed.isEmpty());
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(text.editor->value(), QVariant(QStringLiteral("ab\nc")));
}

void tst_TextPropertyEditor::focusEmitsNothing()
{
    Fixture text;
    QWidget window;
    QLineEdit other(&window);
    QPlainTextEdit *field = text.build();
    field->setParent(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    SignalLog log(text.editor.get());

    field->setFocus();
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, QStringLiteral("abc"));
    other.setFocus();

    QVERIFY(!field->hasFocus());
    QCOMPARE(log.take(), QStringList());
    field->setParent(nullptr);
}

void tst_TextPropertyEditor::readsNoHints()
{
    Fixture text;
    text.property.setHint(kPropertyHintEnabled, false);

    const QPlainTextEdit *field = text.build();
    text.editor->propertyChanged();

    QVERIFY(field->isEnabled());
}

void tst_TextPropertyEditor::revertShowsTheDefaultAndEmitsOnce()
{
    Fixture text;
    text.property.setDefaultValue(QStringLiteral("default"));
    const QPlainTextEdit *field = text.build();
    SignalLog log(text.editor.get());

    text.editor->revertToDefaultValue();

    QCOMPARE(field->toPlainText(), QStringLiteral("default"));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

QTEST_MAIN(tst_TextPropertyEditor)
#include "tst_TextPropertyEditor.moc"
