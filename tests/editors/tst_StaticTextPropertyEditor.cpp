#include "property/editors/StaticTextPropertyEditor.h"

#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QLabel>
#include <QSize>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Fixture : EditorFixture<StaticTextPropertyEditor, QLabel>
{
    Fixture()
        : EditorFixture(kPropertyTypeStaticText)
    {
    }
};

} // namespace

class tst_StaticTextPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsALabelWithoutText();
    void valueBeforeTheWidgetIsEmpty();
    void absentAlignmentLeavesTheDefault_data();
    void absentAlignmentLeavesTheDefault();
    void alignmentHint_data();
    void alignmentHint();
    void alignmentHintIsReadOnce();
    void setValueShowsText_data();
    void setValueShowsText();
    void nothingTheUserDoesEmits();
    void setValueIsSilent();
    void revertShowsTheDefaultAndEmitsOnce();
};

void tst_StaticTextPropertyEditor::showsALabelWithoutText()
{
    Fixture staticText;

    const QLabel *label = staticText.build();

    QVERIFY(label);
    QCOMPARE(label->metaObject(), &QLabel::staticMetaObject);
    QCOMPARE(label->text(), QString());
    QCOMPARE(staticText.editor->value(), QVariant(QString()));
}

void tst_StaticTextPropertyEditor::valueBeforeTheWidgetIsEmpty()
{
    Fixture staticText;

    staticText.editor->setValue(QStringLiteral("early"));

    QCOMPARE(staticText.editor->value().userType(), int(QMetaType::QString));
    QCOMPARE(staticText.editor->value().toString(), QString());
    QCOMPARE(staticText.build()->text(), QString());
}

void tst_StaticTextPropertyEditor::absentAlignmentLeavesTheDefault_data()
{
    QTest::addColumn<bool>("present");
    QTest::newRow("absent") << false;
    QTest::newRow("an invalid variant counts as absent") << true;
}

void tst_StaticTextPropertyEditor::absentAlignmentLeavesTheDefault()
{
    QFETCH(bool, present);
    Fixture staticText;
    if (present)
        staticText.property.setHint(kPropertyHintAlignment, QVariant());

    const QLabel *label = staticText.build();

    QCOMPARE(int(label->alignment()), int(QLabel().alignment()));
    QVERIFY(int(label->alignment()) != 0);
}

void tst_StaticTextPropertyEditor::alignmentHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<int>("alignment");
    QTest::newRow("right") << QVariant(int(Qt::AlignRight)) << int(Qt::AlignRight);
    QTest::newRow("centre") << QVariant(int(Qt::AlignCenter)) << int(Qt::AlignCenter);
    QTest::newRow("right and bottom")
        << QVariant(int(Qt::AlignRight | Qt::AlignBottom)) << int(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("a number as text") << QVariant(QStringLiteral("2")) << int(Qt::AlignRight);
    QTest::newRow("zero, no bits") << QVariant(0) << 0;
    QTest::newRow("null") << QVariant::fromValue(nullptr) << 0;
    QTest::newRow("unconvertible") << QVariant(QStringLiteral("right")) << 0;
}

void tst_StaticTextPropertyEditor::alignmentHint()
{
    QFETCH(QVariant, hint);
    QFETCH(int, alignment);
    Fixture staticText;
    staticText.property.setHint(kPropertyHintAlignment, hint);

    QCOMPARE(int(staticText.build()->alignment()), alignment);
}

void tst_StaticTextPropertyEditor::alignmentHintIsReadOnce()
{
    Fixture staticText;
    const QLabel *label = staticText.build();
    const int atFirst = int(label->alignment());

    staticText.property.setHint(kPropertyHintAlignment, int(Qt::AlignRight));
    staticText.editor->propertyChanged();

    QCOMPARE(int(label->alignment()), atFirst);
}

void tst_StaticTextPropertyEditor::setValueShowsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral("abc")) << QStringLiteral("abc");
    QTest::newRow("number") << QVariant(42) << QStringLiteral("42");
    QTest::newRow("invalid") << QVariant() << QString();
    QTest::newRow("unconvertible") << QVariant(QSize(1, 1)) << QString();
}

void tst_StaticTextPropertyEditor::setValueShowsText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    Fixture staticText;
    QLabel *label = staticText.build();
    label->setText(QStringLiteral("before"));

    staticText.editor->setValue(value);

    QCOMPARE(label->text(), text);
    QCOMPARE(staticText.editor->value(), QVariant(text));
    QCOMPARE(staticText.editor->value().userType(), int(QMetaType::QString));
}

void tst_StaticTextPropertyEditor::nothingTheUserDoesEmits()
{
    Fixture staticText;
    QLabel *label = staticText.build();
    staticText.editor->setValue(QStringLiteral("abc"));
    SignalLog log(staticText.editor.get());

    QTest::mouseClick(label, Qt::LeftButton);
    QTest::keyClicks(label, QStringLiteral("def"));
    QTest::keyClick(label, Qt::Key_Return);

    QCOMPARE(label->text(), QStringLiteral("abc"));
    QCOMPARE(log.take(), QStringList());
}

void tst_StaticTextPropertyEditor::setValueIsSilent()
{
    Fixture staticText;
    staticText.build();
    SignalLog log(staticText.editor.get());

    staticText.editor->setValue(QStringLiteral("abc"));

    QCOMPARE(log.take(), QStringList());
}

void tst_StaticTextPropertyEditor::revertShowsTheDefaultAndEmitsOnce()
{
    Fixture staticText;
    staticText.property.setDefaultValue(QStringLiteral("default"));
    const QLabel *label = staticText.build();
    SignalLog log(staticText.editor.get());

    staticText.editor->revertToDefaultValue();

    QCOMPARE(label->text(), QStringLiteral("default"));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

QTEST_MAIN(tst_StaticTextPropertyEditor)
#include "tst_StaticTextPropertyEditor.moc"
