#include <property/PropertyUI.h>
#include <property/editors/FilenamePropertyEditor.h>

#include "property/QtCompat_p.h"
#include "support/FileDialogs.h"
#include "support/FileTree.h"

#include <core/FilenameField.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::UI::FilenameField;

class tst_FilenamePropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void registryMakesIt();
    void showsNothingBeforeTheWidget();
    void widgetIsBuiltOnceWithoutParent();
    void picksDirectoriesOnly();
    void nativeDialogHint_data();
    void nativeDialogHint();
    void setValueShowsTheText_data();
    void setValueShowsTheText();
    void setValuesShowsTheFirst();
    void typingIsAnnouncedOnce();
    void leavingUnchangedIsSilent();
    void choiceInTheDialogIsAnnouncedOnce();
    void revertingAnnouncesTheDefault();
    void enabledHintIsNotRead();
    void panelDeliversTheName();
    void delegateMayDeleteThePanel();

private:
    FilenameField *build();
    QLineEdit *edit() const { return m_widget->findChild<QLineEdit *>(); }

    FileTree m_tree;
    QTemporaryDir m_home;
    std::unique_ptr<Property> m_property;
    std::unique_ptr<FilenamePropertyEditor> m_editor;
    std::unique_ptr<QWidget> m_widget;
};

void tst_FilenamePropertyEditor::initTestCase()
{
    QVERIFY(m_tree.isComplete());
    QVERIFY(m_home.isValid());
    // Dialogs start at home and keep their settings there.
    qputenv("HOME", m_home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
}

void tst_FilenamePropertyEditor::init()
{
    m_property = std::make_unique<Property>(QStringLiteral("target"), QStringLiteral("Target"),
                                            kPropertyTypeFilename);
    m_editor = std::make_unique<FilenamePropertyEditor>(m_property.get());
}

void tst_FilenamePropertyEditor::cleanup()
{
    m_widget.reset();
    m_editor.reset();
}

FilenameField *tst_FilenamePropertyEditor::build()
{
    m_widget.reset(m_editor->widget(nullptr));
    return qobject_cast<FilenameField *>(m_widget.get());
}

void tst_FilenamePropertyEditor::registryMakesIt()
{
    PropertyEditorPanel::InitialiseRegistry();
    const auto factory = PropertyEditorRegistry::Instance()->factory(m_property.get());
    QVERIFY(factory);

    const std::unique_ptr<PropertyEditor> editor(factory(m_property.get()));

    QVERIFY(qobject_cast<FilenamePropertyEditor *>(editor.get()));
    QCOMPARE(editor->editedProperty(), m_property.get());
}

void tst_FilenamePropertyEditor::showsNothingBeforeTheWidget()
{
    m_editor->setValue(QStringLiteral("/a"));

    QCOMPARE(m_editor->value(), QVariant(QString()));
}

void tst_FilenamePropertyEditor::widgetIsBuiltOnceWithoutParent()
{
    const FilenameField *const field = build();

    QVERIFY(field);
    QVERIFY(!field->parent());
    QCOMPARE(m_editor->widget(nullptr), field);
}

void tst_FilenamePropertyEditor::picksDirectoriesOnly()
{
    FilenameField *const field = build();
    QCOMPARE(field->fileMode(), kDirectoryOnlyMode);

    field->browse();

    const auto *const dialog = field->findChild<QFileDialog *>();
    QVERIFY(dialog);
    QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
    QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
}

void tst_FilenamePropertyEditor::nativeDialogHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<bool>("native");

    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("text true") << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("not convertible") << QVariant(QStringList()) << false;
}

void tst_FilenamePropertyEditor::nativeDialogHint()
{
    QFETCH(const QVariant, hint);
    QFETCH(const bool, native);
    if (hint.isValid())
        m_property->setHint(kPropertyHintUseNativeDialogs, hint);

    QCOMPARE(build()->usesNativeDialogs(), native);
}

void tst_FilenamePropertyEditor::setValueShowsTheText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("text") << QVariant(QStringLiteral("/a b")) << QStringLiteral("/a b");
    QTest::newRow("number") << QVariant(12) << QStringLiteral("12");
    QTest::newRow("invalid") << QVariant() << QString();
    QTest::newRow("not convertible") << QVariant(QVariantMap()) << QString();
}

void tst_FilenamePropertyEditor::setValueShowsTheText()
{
    QFETCH(const QVariant, value);
    QFETCH(const QString, text);
    FilenameField *const field = build();
    field->setFilename(QStringLiteral("before"));
    QSignalSpy spy(m_editor.get(), &PropertyEditor::valueChanged);

    m_editor->setValue(value);

    QCOMPARE(field->filename(), text);
    QCOMPARE(m_editor->value(), QVariant(text));
    QCOMPARE(m_editor->value().userType(), int(QMetaType::QString));
    QCOMPARE(spy.count(), 0);
}

void tst_FilenamePropertyEditor::setValuesShowsTheFirst()
{
    const FilenameField *const field = build();

    m_editor->setValues({QStringLiteral("/a"), QStringLiteral("/b")});

    QCOMPARE(field->filename(), QStringLiteral("/a"));
}

void tst_FilenamePropertyEditor::typingIsAnnouncedOnce()
{
    build();
    QSignalSpy spy(m_editor.get(), &PropertyEditor::valueChanged);
    QSignalSpy start(m_editor.get(), &PropertyEditor::startInteractiveChange);
    QSignalSpy end(m_editor.get(), &PropertyEditor::endInteractiveChange);

    QTest::keyClicks(edit(), QStringLiteral("/a"));
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(edit(), Qt::Key_Return);

    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_editor->value(), QVariant(QStringLiteral("/a")));
    QVERIFY(start.isEmpty() && end.isEmpty());
}

void tst_FilenamePropertyEditor::leavingUnchangedIsSilent()
{
    FilenameField *const field = build();
    m_editor->setValue(QStringLiteral("/a"));
    field->show();
    field->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(field));
    field->setFocus();
    QSignalSpy spy(m_editor.get(), &PropertyEditor::valueChanged);

    field->findChild<QToolButton *>()->setFocus();

    QVERIFY(!edit()->hasFocus());
    QCOMPARE(spy.count(), 0);
}

void tst_FilenamePropertyEditor::choiceInTheDialogIsAnnouncedOnce()
{
    FilenameField *const field = build();
    field->show();
    QVERIFY(QTest::qWaitForWindowExposed(field));
    QSignalSpy spy(m_editor.get(), &PropertyEditor::valueChanged);

    QTest::mouseClick(field->findChild<QToolButton *>(), Qt::LeftButton);
    auto *const dialog = field->findChild<QFileDialog *>();
    QVERIFY(dialog && QTest::qWaitForWindowExposed(dialog));
    acceptByTyping(dialog, m_tree.path("alpha"));

    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(m_editor->value(), QVariant(m_tree.path("alpha")));
}

void tst_FilenamePropertyEditor::revertingAnnouncesTheDefault()
{
    m_property->setDefaultValue(QStringLiteral("/default"));
    const FilenameField *const field = build();
    QSignalSpy spy(m_editor.get(), &PropertyEditor::valueChanged);

    m_editor->revertToDefaultValue();

    QCOMPARE(field->filename(), QStringLiteral("/default"));
    QCOMPARE(spy.count(), 1);
}

void tst_FilenamePropertyEditor::enabledHintIsNotRead()
{
    m_property->setHint(kPropertyHintEnabled, false);
    const FilenameField *const field = build();

    m_editor->propertyChanged();

    QVERIFY(field->isEnabled());
}

namespace {

class StoringDelegate : public IPropertyEditorDelegate
{
public:
    void setValue(Property *, const QVariant &value, ChangeFlags flags) override
    {
        stored = value;
        lastFlags = flags;
        ++calls;
        delete panel;
        panel = nullptr;
    }

    QVariant value(Property *) override { return stored; }

    QVariant stored;
    ChangeFlags lastFlags{};
    int calls = 0;
    PropertyEditorPanel *panel = nullptr; // deleted on the first change when set
};

} // namespace

void tst_FilenamePropertyEditor::panelDeliversTheName()
{
    StoringDelegate delegate;
    delegate.stored = QStringLiteral("/before");
    PropertyEditorPanel panel({m_property.get()}, &delegate, nullptr);
    panel.updateUI();
    auto *const line = panel.findChild<QLineEdit *>();
    QCOMPARE(line->text(), QStringLiteral("/before"));

    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("/after"));
    QTest::keyClick(line, Qt::Key_Return);

    QCOMPARE(delegate.stored, QVariant(QStringLiteral("/after")));
    QCOMPARE(delegate.calls, 1);
    QVERIFY(!delegate.lastFlags);
}

void tst_FilenamePropertyEditor::delegateMayDeleteThePanel()
{
    StoringDelegate delegate;
    delegate.panel = new PropertyEditorPanel({m_property.get()}, &delegate, nullptr);
    auto *const line = delegate.panel->findChild<QLineEdit *>();
    QTest::keyClicks(line, QStringLiteral("/after"));

    QTest::keyClick(line, Qt::Key_Return);

    QVERIFY(!delegate.panel);
    QCOMPARE(delegate.calls, 1);
}

QTEST_MAIN(tst_FilenamePropertyEditor)
#include "tst_FilenamePropertyEditor.moc"
