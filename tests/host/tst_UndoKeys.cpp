#include <host/PropertyStore.h>
#include <host/UndoDelegate.h>
#include <host/UndoKeys.h>
#include <property/PropertyUI.h>

#include "support/PropertySet.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTest>
#include <QUndoStack>
#include <QVBoxLayout>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyHost::UndoDelegate;
using Tessark::PropertyHost::UndoKeys;

namespace {

constexpr auto kNew = IPropertyEditorDelegate::NewChange;
constexpr auto kRedoModifiers = Qt::ControlModifier | Qt::ShiftModifier;

const QString kBefore = QStringLiteral("before");

} // namespace

class tst_UndoKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keysInAField_data();
    void keysInAField();
    void fieldsOwnHistoryIsLeftAlone_data();
    void fieldsOwnHistoryIsLeftAlone();
    void standardKeysWork();
    void keyWithNothingToUndoStaysFromTheField();
    void typedLineBecomesTheStep();
    void finishedLineIsNoFurtherStep();
    void actionsOfTheWindowComeFirst();
    void otherKeysReachTheField();
    void fieldMayKeepTheKeys();
    void fieldOutsideOfThePanelHasItsOwnHistory();
    void otherWindowHasItsOwnHistory();
    void keysWithoutStackDoNothing();
    void panelMayGoInTheCallback();

private:
    QWidget *field(const char *name) const;
    void edit(Property &property, const QVariant &value)
    {
        m_undo->setValue(&property, value, kNew);
    }
    QString shown() const { return static_cast<QLineEdit *>(field("line"))->text(); }

    std::unique_ptr<TestSupport::PropertySet> m_set;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<UndoDelegate> m_undo;
    std::unique_ptr<QWidget> m_window;
    PropertyEditorPanel *m_panel = nullptr;
    QLineEdit *m_search = nullptr; // in the window, not in the panel
    UndoKeys *m_keys = nullptr;
    Property *m_line = nullptr;
    Property *m_number = nullptr;
};

void tst_UndoKeys::init()
{
    m_set = std::make_unique<TestSupport::PropertySet>();
    m_line = &m_set->add(QStringLiteral("line"), kPropertyTypeString);
    m_number = &m_set->add(QStringLiteral("number"), kPropertyTypeInteger).setRange(0, 1000);
    m_set->add(QStringLiteral("text"), kPropertyTypeText);
    m_set->add(QStringLiteral("box"), kPropertyTypeBoolean);
    m_store = std::make_unique<PropertyStore>();
    m_store->setValue(m_line, kBefore, kNew);
    m_store->setValue(m_number, 5, kNew);
    m_stack = std::make_unique<QUndoStack>();
    m_undo = std::make_unique<UndoDelegate>(m_store.get(), m_stack.get());
    m_window = std::make_unique<QWidget>();
    auto *const layout = new QVBoxLayout(m_window.get());
    m_panel = new PropertyEditorPanel(m_set->list(), m_undo.get(), nullptr);
    m_search = new QLineEdit;
    layout->addWidget(m_panel);
    layout->addWidget(m_search);
    m_undo->attach(m_panel);
    m_keys = new UndoKeys(m_stack.get(), m_panel);
    m_panel->updateUI();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_UndoKeys::cleanup()
{
    m_window.reset();
    m_undo.reset();
    m_stack.reset();
}

/// The control of a row that takes the focus.
QWidget *tst_UndoKeys::field(const char *name) const
{
    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (editor->editedProperty()->name != QLatin1String(name))
            continue;
        QWidget *const widget = editor->widget(nullptr);
        auto *const spinBox = widget->findChild<QSpinBox *>();
        return spinBox ? spinBox : widget;
    }
    return nullptr;
}

void tst_UndoKeys::keysInAField_data()
{
    QTest::addColumn<QByteArray>("name");

    for (const char *name : {"line", "number", "text", "box"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_UndoKeys::keysInAField()
{
    QFETCH(QByteArray, name);
    edit(*m_line, QStringLiteral("one"));
    edit(*m_line, QStringLiteral("two"));
    m_panel->updateUI();
    QWidget *const focused = field(name.constData());
    focused->setFocus();
    QTRY_VERIFY(focused->hasFocus());

    QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), QStringLiteral("one"));
    QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), kBefore);
    QTest::keyClick(focused, Qt::Key_Z, kRedoModifiers);
    QTest::keyClick(focused, Qt::Key_Z, kRedoModifiers);

    QCOMPARE(shown(), QStringLiteral("two"));
    QCOMPARE(m_store->value(m_line), QVariant(QStringLiteral("two")));
}

void tst_UndoKeys::fieldsOwnHistoryIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("before");

    QTest::newRow("a line of text") << QByteArray("line") << QVariant(kBefore);
    QTest::newRow("a number field") << QByteArray("number") << QVariant(5);
}

void tst_UndoKeys::fieldsOwnHistoryIsLeftAlone()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, before);
    QWidget *const focused = field(name.constData());
    Property *const property = name == "line" ? m_line : m_number;
    focused->setFocus();
    QTRY_VERIFY(focused->hasFocus());
    QTest::keyClick(focused, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(focused, QStringLiteral("678"));
    QTest::keyClick(focused, Qt::Key_Return);
    QCOMPARE(m_store->value(property).toString(), QStringLiteral("678"));

    QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);

    // All of what was typed, where the field itself would take back a part.
    QCOMPARE(m_store->value(property), before);
    QCOMPARE(m_stack->index(), 0);
    QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_store->value(property), before);
    QCOMPARE(m_stack->count(), 1);
}

void tst_UndoKeys::standardKeysWork()
{
    for (const auto standard : {QKeySequence::Undo, QKeySequence::Redo}) {
        const auto bindings = QKeySequence::keyBindings(standard);
        QVERIFY(!bindings.isEmpty());
        for (const QKeySequence &keys : bindings) {
            m_stack->clear();
            edit(*m_line, QStringLiteral("one"));
            if (standard == QKeySequence::Redo)
                m_stack->undo();
            m_panel->updateUI();
            field("line")->setFocus();

            QTest::keySequence(field("line"), keys);

            QCOMPARE(shown(), standard == QKeySequence::Undo ? kBefore : QStringLiteral("one"));
            m_store->setValue(m_line, kBefore, kNew);
        }
    }
}

void tst_UndoKeys::keyWithNothingToUndoStaysFromTheField()
{
    auto *const text = static_cast<QPlainTextEdit *>(field("text"));
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("typed"));

    QTest::keyClick(text, Qt::Key_Z, Qt::ControlModifier);

    QCOMPARE(text->toPlainText(), QStringLiteral("typed"));
}

void tst_UndoKeys::typedLineBecomesTheStep()
{
    edit(*m_number, 6);
    field("line")->setFocus();
    QTest::keyClicks(field("line"), QStringLiteral("typed"));
    const QString typed = shown();

    QTest::keyClick(field("line"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), kBefore);
    QCOMPARE(m_store->value(m_number), QVariant(6));

    QTest::keyClick(field("line"), Qt::Key_Z, kRedoModifiers);
    QCOMPARE(shown(), typed);
    QCOMPARE(m_store->value(m_line), QVariant(typed));
    QCOMPARE(m_stack->count(), 2);
}

void tst_UndoKeys::finishedLineIsNoFurtherStep()
{
    field("line")->setFocus();
    QTest::keyClicks(field("line"), QStringLiteral("typed"));
    QTest::keyClick(field("line"), Qt::Key_Return);

    QTest::keyClick(field("line"), Qt::Key_Z, kRedoModifiers);
    QCOMPARE(m_stack->count(), 1);
    QTest::keyClick(field("line"), Qt::Key_Z, Qt::ControlModifier);

    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(shown(), kBefore);
}

void tst_UndoKeys::actionsOfTheWindowComeFirst()
{
    QAction action;
    action.setShortcuts(QKeySequence::Undo);
    int triggered = 0;
    connect(&action, &QAction::triggered, this, [&triggered] { ++triggered; });
    m_window->addAction(&action);
    edit(*m_line, QStringLiteral("one"));
    field("number")->setFocus();
    QTRY_VERIFY(field("number")->hasFocus());

    QTest::keyClick(field("number"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(triggered, 1);
    QCOMPARE(m_stack->index(), 1);

    action.setEnabled(false);
    QTest::keyClick(field("number"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(triggered, 1);
    QCOMPARE(m_stack->index(), 0);
}

void tst_UndoKeys::otherKeysReachTheField()
{
    edit(*m_number, 6);
    field("line")->setFocus();

    QTest::keyClicks(field("line"), QStringLiteral("zZ"));
    QVERIFY(shown().endsWith(QStringLiteral("zZ")));
    QTest::keyClick(field("line"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field("line"), QStringLiteral("y"));
    QCOMPARE(shown(), QStringLiteral("y"));
    QCOMPARE(m_stack->index(), 1);
}

void tst_UndoKeys::fieldMayKeepTheKeys()
{
    bool keeps = true;
    m_keys->setFieldKeepsKeys([&keeps] { return keeps; });
    edit(*m_number, 6);
    field("line")->setFocus();
    QTest::keyClicks(field("line"), QStringLiteral("typed"));

    QTest::keyClick(field("line"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), kBefore);
    QCOMPARE(m_stack->index(), 1);

    keeps = false;
    QTest::keyClick(field("line"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_stack->index(), 0);
    QCOMPARE(m_store->value(m_number), QVariant(5));

    m_keys->setFieldKeepsKeys({});
    QTest::keyClick(field("line"), Qt::Key_Z, kRedoModifiers);
    QCOMPARE(m_store->value(m_number), QVariant(6));
}

void tst_UndoKeys::fieldOutsideOfThePanelHasItsOwnHistory()
{
    edit(*m_number, 6);
    m_search->setFocus();
    QTest::keyClicks(m_search, QStringLiteral("typed"));

    QTest::keyClick(m_search, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_search->text(), QString());
    QCOMPARE(m_stack->index(), 1);

    const UndoKeys whole(m_stack.get(), m_window.get());
    QTest::keyClick(m_search, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_stack->index(), 0);
}

void tst_UndoKeys::otherWindowHasItsOwnHistory()
{
    edit(*m_number, 6);
    QDialog dialog(m_panel);
    auto *const line = new QLineEdit(&dialog);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(line, QStringLiteral("typed"));

    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);

    QCOMPARE(line->text(), QString());
    QCOMPARE(m_stack->index(), 1);
}

void tst_UndoKeys::keysWithoutStackDoNothing()
{
    edit(*m_number, 6);
    m_stack.reset();

    QTest::keyClick(field("number"), Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(field("number"), Qt::Key_Z, kRedoModifiers);

    QCOMPARE(m_store->value(m_number), QVariant(6));
}

void tst_UndoKeys::panelMayGoInTheCallback()
{
    edit(*m_number, 6);
    field("number")->setFocus();
    connect(m_store.get(), &PropertyStore::valueChanged, this, [this] { delete m_panel; });

    QTest::keyClick(field("number"), Qt::Key_Z, Qt::ControlModifier);

    disconnect(m_store.get(), nullptr, this, nullptr);
    QCOMPARE(m_store->value(m_number), QVariant(5));
}

QTEST_MAIN(tst_UndoKeys)
#include "tst_UndoKeys.moc"
