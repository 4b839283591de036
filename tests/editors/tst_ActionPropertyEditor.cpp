#include "property/editors/ActionPropertyEditor.h"

#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Fixture : EditorFixture<ActionPropertyEditor, QPushButton>
{
    Fixture()
        : EditorFixture(kPropertyTypeAction)
    {
    }
};

} // namespace

class tst_ActionPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAButtonWithTheLabel();
    void neverHasAValue();
    void setValueChangesNothing();
    void clickEmitsOnce();
    void pressedKeyEmitsOnce();
    void abandonedClickEmitsNothing();
    void readsNoHints();
    void editorMayDieInAClick();
    void buttonMayDieInAClickToo();
};

void tst_ActionPropertyEditor::showsAButtonWithTheLabel()
{
    Fixture action;

    const QPushButton *button = action.build();

    QVERIFY(button);
    QCOMPARE(button->metaObject(), &QPushButton::staticMetaObject);
    QCOMPARE(button->text(), QStringLiteral("Label"));
    QVERIFY(!button->isCheckable());
}

void tst_ActionPropertyEditor::neverHasAValue()
{
    Fixture action;

    QVERIFY(!action.editor->value().isValid());
    QTest::mouseClick(action.build(), Qt::LeftButton);
    QVERIFY(!action.editor->value().isValid());
}

void tst_ActionPropertyEditor::setValueChangesNothing()
{
    Fixture action;
    action.editor->setValue(true);
    const QPushButton *button = action.build();
    SignalLog log(action.editor.get());

    action.editor->setValue(QStringLiteral("other"));

    QCOMPARE(button->text(), QStringLiteral("Label"));
    QVERIFY(!action.editor->value().isValid());
    QCOMPARE(log.take(), QStringList());
}

void tst_ActionPropertyEditor::clickEmitsOnce()
{
    Fixture action;
    QPushButton *button = action.build();
    SignalLog log(action.editor.get());

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_ActionPropertyEditor::pressedKeyEmitsOnce()
{
    Fixture action;
    QPushButton *button = action.build();
    SignalLog log(action.editor.get());

    QTest::keyClick(button, Qt::Key_Space);

    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_ActionPropertyEditor::abandonedClickEmitsNothing()
{
    Fixture action;
    QPushButton *button = action.build();
    SignalLog log(action.editor.get());

    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseMove(button, QPoint(-10, -10));
    QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(-10, -10));

    QCOMPARE(log.take(), QStringList());
}

void tst_ActionPropertyEditor::readsNoHints()
{
    Fixture action;
    action.property.setHint(kPropertyHintEnabled, false).setHint(kPropertyHintBoolHideLabel, true);

    const QPushButton *button = action.build();
    action.property.label = QStringLiteral("New");
    action.editor->propertyChanged();

    QVERIFY(button->isEnabled());
    QCOMPARE(button->text(), QStringLiteral("Label"));
}

void tst_ActionPropertyEditor::editorMayDieInAClick()
{
    Fixture action;
    QPushButton *button = action.build();
    connect(action.editor.get(), &PropertyEditor::valueChanged, this,
            [&action] { action.editor.reset(); });

    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!action.editor);
    QTest::mouseClick(button, Qt::LeftButton);
}

void tst_ActionPropertyEditor::buttonMayDieInAClickToo()
{
    Fixture action;
    const QPointer<QPushButton> button = action.build();
    connect(action.editor.get(), &PropertyEditor::valueChanged, this, [&action] {
        action.widget.reset();
        action.editor.reset();
    });

    QTest::mouseClick(button.data(), Qt::LeftButton);

    QVERIFY(!button);
}

QTEST_MAIN(tst_ActionPropertyEditor)
#include "tst_ActionPropertyEditor.moc"
