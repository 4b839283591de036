#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/ValueJson.h>
#include <property/PropertyUI.h>
#include <property/TextureChoice.h>
#include <property/editors/ImagePropertyEditor.h>
#include <tools/property-panel/PanelWindow.h>

#include <support/FileDrag.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QUrl>

#include <memory>

using namespace Tessark::PropertyPanel;
using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyPanelView;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyHost::valueFromJson;

class tst_PanelWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void titleComesFromTheList();
    void freshWindowHasNothingToSave();
    void saveWritesAndFinishesOnce();
    void saveTakesTheTextBeingTyped();
    void valueThatItsEditorCannotShowStays();
    void saveWritesTheSettingsToo();
    void arrangementComesBack();
    void cancelKeepsTheArrangement();
    void viewIsAsAProgramWants();
    void failedSettingsKeepTheWindow();
    void failedSaveShowsWhyAndKeepsEverything();
    void saveAfterAFailureSucceeds();
    void undoAndRedoByButton();
    void undoNamesTheRow();
    void undoKeysInAField_data();
    void undoKeysInAField();
    void undoKeyInAFieldBeingTypedInStaysInTheField();
    void undoTakesBackTextThatIsOnlyTyped();
    void textFieldBecomesOneStepWhenItLosesTheFocus();
    void resetAllIsOneStep();
    void resetAllWithoutChangesIsNoStep();
    void cancelWithoutChangesFinishesAtOnce();
    void cancelWithChangesAsks_data();
    void cancelWithChangesAsks();
    void cancelAsksForTextThatIsOnlyTyped();
    void closingWithChangesKeepsTheWindow();
    void secondCancelDoesNotAskTwice();
    void savingFromTheQuestion();
    void returnInAFieldDoesNotSave();
    void pickedTextureIsAStep();
    void resetAllShowsTheDefaultTexture();
    void resetAllToNoTexture();
    void pictureGoesBackToItsDefault();
    void droppedPicturesAreNoChange();
    void unreadableDropsAreShown();
    void groupOnATabPageFolds();
    void foldingIsAStepWithoutChange();
    void modifiedMarkFollowsTheValues();
    void wholePanelFitsTheSizeHint();
    void windowMayBeDeletedWhenFinished();
    void rulesHold();
    void valueCutByARuleIsNoEdit();

private:
    void show();
    QListWidget *addTextures(const char *initial);
    QLineEdit *title() const { return m_window->findChildren<QLineEdit *>().constFirst(); }
    QPlainTextEdit *notes() const { return m_window->findChild<QPlainTextEdit *>(); }
    QCheckBox *loop() const;
    QToolButton *toolButton(const char *text) const;
    QPushButton *button(const char *text) const;
    QMessageBox *question() const { return m_window->findChild<QMessageBox *>(); }
    QString outputPath() const { return m_folder->filePath(QStringLiteral("out.json")); }
    QJsonObject saved() const;
    QVariant stored(int row) const { return m_store->value(m_list->properties().at(row)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<PanelWindow> m_window;
    QVector<ExitStatus> m_finished;
};

namespace {

void click(QAbstractButton *button)
{
    // A check box reacts at its left only.
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

void clickRow(QListWidget *list, int row)
{
    list->scrollToItem(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
}

void drop(QListWidget *list, const QString &path)
{
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(path)});
    sendDragEvent<QDragEnterEvent>(list->viewport(), QPoint(9, 9), {mime});
    sendDragEvent<QDropEvent>(list->viewport(), QPoint(9, 9), {mime});
}

void typeOver(QWidget *field, const char *text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QString::fromLatin1(text));
}

} // namespace

void tst_PanelWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_list = std::make_unique<PropertyList>();
    m_list->setTitle(QStringLiteral("Settings"));
    m_list->append({QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString})
        .setDefaultValue(QStringLiteral("Untitled"));
    m_list->append({QStringLiteral("loop"), QStringLiteral("Loop"), kPropertyTypeBoolean})
        .setDefaultValue(false);
    m_list->append({QStringLiteral("notes"), QStringLiteral("Notes"), kPropertyTypeText})
        .setDefaultValue(QString());
    m_store = std::make_unique<PropertyStore>();
    m_store->reset(*m_list);
    m_finished.clear();
}

void tst_PanelWindow::cleanup()
{
    m_window.reset();
    m_store.reset();
    m_list.reset();
}

void tst_PanelWindow::show()
{
    m_window = std::make_unique<PanelWindow>(*m_list, m_store.get(), ValuesWriter(outputPath()));
    connect(m_window.get(), &PanelWindow::finished, this,
            [this](ExitStatus status) { m_finished.append(status); });
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

QCheckBox *tst_PanelWindow::loop() const
{
    const auto boxes = m_window->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes) {
        if (box->text() == QLatin1String("Loop"))
            return box;
    }
    return nullptr;
}

QToolButton *tst_PanelWindow::toolButton(const char *text) const
{
    const auto buttons = m_window->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->text() == QLatin1String(text))
            return button;
    }
    return nullptr;
}

QPushButton *tst_PanelWindow::button(const char *text) const
{
    const auto buttons = m_window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == QLatin1String(text))
            return button;
    }
    return nullptr;
}

QJsonObject tst_PanelWindow::saved() const
{
    QFile file(outputPath());
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

void tst_PanelWindow::titleComesFromTheList()
{
    show();

    QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Settings")));
}

void tst_PanelWindow::freshWindowHasNothingToSave()
{
    show();

    QVERIFY(!m_window->hasUnsavedChanges());
    QVERIFY(!toolButton("Undo")->isEnabled());
    QVERIFY(!toolButton("Redo")->isEnabled());
}

void tst_PanelWindow::saveWritesAndFinishesOnce()
{
    show();
    click(loop());

    click(button("Save"));
    m_window->save();

    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Saved});
    QVERIFY(m_window->isHidden());
    QCOMPARE(saved().value(QStringLiteral("loop")), QJsonValue(true));
}

void tst_PanelWindow::saveTakesTheTextBeingTyped()
{
    show();
    typeOver(notes(), "some notes");
    typeOver(title(), "typed"); // no Return, and the field keeps the focus

    QTest::keyClick(title(), Qt::Key_S, Qt::ControlModifier);

    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Saved});
    QCOMPARE(saved().value(QStringLiteral("title")), QJsonValue(QStringLiteral("typed")));
    QCOMPARE(saved().value(QStringLiteral("notes")), QJsonValue(QStringLiteral("some notes")));
}

void tst_PanelWindow::valueThatItsEditorCannotShowStays()
{
    // The field shows another kind of line break; nobody has touched it, so it is not a change.
    const QString text = QStringLiteral("two\r\nlines");
    m_store->setValue(m_list->properties().at(2), text, PropertyStore::NewChange);
    show();

    QVERIFY(notes()->toPlainText() != text);
    QVERIFY(!m_window->hasUnsavedChanges());
    m_window->save();

    QCOMPARE(saved().value(QStringLiteral("notes")), QJsonValue(text));
}

void tst_PanelWindow::saveWritesTheSettingsToo()
{
    show();
    const QString path = m_folder->filePath(QStringLiteral("program.ini"));
    m_window->setSettingsPath(path);
    QSignalSpy about(m_window.get(), &PanelWindow::aboutToSave);
    typeOver(title(), "typed");

    click(button("Save"));

    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Saved});
    QCOMPARE(about.size(), 1);
    QCOMPARE(saved().value(QStringLiteral("title")), QJsonValue(QStringLiteral("typed")));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    // How the panel is arranged goes there too.
    const QByteArray content = file.readAll();
    QVERIFY2(content.startsWith("[General]\nloop=false\nnotes=\ntitle=typed\n\n[property-panel]\n"),
             content.constData());
}

void tst_PanelWindow::arrangementComesBack()
{
    m_list->group(QStringLiteral("Group"),
                  [this] { m_list->string(QStringLiteral("inner"), QStringLiteral("Inner")); });
    m_store->reset(*m_list);
    const QString path = m_folder->filePath(QStringLiteral("program.ini"));
    show();
    m_window->setSettingsPath(path);
    click(m_window->findChildren<QCheckBox *>().constLast());
    m_window->findChild<PropertyPanelView *>()->setLabelWidth(50);
    notes()->setFocus();
    m_window->save();

    show();
    m_window->setSettingsPath(path);

    auto *const view = m_window->findChild<PropertyPanelView *>();
    QVERIFY(!view->isGroupOpen(m_list->properties().at(3)));
    QCOMPARE(view->labelWidth(), 50);
    QVERIFY(notes()->hasFocus());
    QVERIFY(!m_window->hasUnsavedChanges());
    QVERIFY(!toolButton("Undo")->isEnabled());
}

/// Of a file that has one; otherwise Cancel writes nothing.
void tst_PanelWindow::cancelKeepsTheArrangement()
{
    const QString path = m_folder->filePath(QStringLiteral("program.ini"));
    show();
    m_window->setSettingsPath(path);
    m_window->findChild<PropertyPanelView *>()->setLabelWidth(50);
    click(button("Cancel"));
    QVERIFY(!QFile::exists(path));
    show();
    m_window->setSettingsPath(path);
    m_window->save();

    show();
    m_window->setSettingsPath(path);
    m_window->findChild<PropertyPanelView *>()->setLabelWidth(70);
    click(button("Cancel"));

    show();
    m_window->setSettingsPath(path);
    QCOMPARE(m_window->findChild<PropertyPanelView *>()->labelWidth(), 70);
}

void tst_PanelWindow::viewIsAsAProgramWants()
{
    m_list->string(QStringLiteral("helped"), QString()).help(QStringLiteral("What it is for."));
    m_store->reset(*m_list);
    show();

    auto *view = m_window->findChild<PropertyPanelView *>();
    QVERIFY(view->isWheelGuarded());
    QVERIFY(view->isSplitterMovable());
    QVERIFY(view->areTextsAsWritten());
    QVERIFY(view->isDescriptionVisible());

    m_list->properties().constLast()->setHint(Tessark::PropertyHost::kHostHintHelp, QVariant());
    show();
    view = m_window->findChild<PropertyPanelView *>();
    QVERIFY(!view->isDescriptionVisible()); // there is nothing to tell
}

void tst_PanelWindow::failedSettingsKeepTheWindow()
{
    show();
    m_window->setSettingsPath(m_folder->path());
    click(loop());

    click(button("Save"));

    QVERIFY(m_finished.isEmpty());
    QVERIFY(m_window->hasUnsavedChanges());
    const auto *const banner = m_window->findChild<QLabel *>(QStringLiteral("errorBanner"));
    QVERIFY2(banner->text().contains(m_folder->path()), qPrintable(banner->text()));
    m_window->setSettingsPath(QString());
    click(button("Save"));
    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Saved});
}

void tst_PanelWindow::failedSaveShowsWhyAndKeepsEverything()
{
    show();
    auto *const banner = m_window->findChild<QLabel *>(QStringLiteral("errorBanner"));
    QVERIFY(banner->isHidden());
    typeOver(title(), "typed");
    m_folder->remove();

    click(button("Save"));

    QVERIFY(m_finished.isEmpty());
    QVERIFY(m_window->isVisible());
    QVERIFY(banner->isVisible());
    QVERIFY2(banner->text().contains(outputPath()), qPrintable(banner->text()));
    QCOMPARE(title()->text(), QStringLiteral("typed"));
    QVERIFY(m_window->hasUnsavedChanges());
}

void tst_PanelWindow::saveAfterAFailureSucceeds()
{
    show();
    click(loop());
    const QString folder = m_folder->path();
    m_folder->remove();
    click(button("Save"));
    QVERIFY(m_finished.isEmpty());
    QVERIFY(QDir().mkpath(folder));

    click(button("Save"));

    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Saved});
    QCOMPARE(saved().value(QStringLiteral("loop")), QJsonValue(true));
    QVERIFY(QDir(folder).removeRecursively());
}

void tst_PanelWindow::undoAndRedoByButton()
{
    show();
    click(loop());

    click(toolButton("Undo"));
    QVERIFY(!loop()->isChecked());
    QCOMPARE(stored(1), QVariant(false));
    QVERIFY(!m_window->hasUnsavedChanges());

    click(toolButton("Redo"));
    QVERIFY(loop()->isChecked());
    QCOMPARE(stored(1), QVariant(true));
}

void tst_PanelWindow::undoNamesTheRow()
{
    show();
    click(loop());

    QCOMPARE(toolButton("Undo")->defaultAction()->text(), QStringLiteral("Undo Loop"));
    click(toolButton("Undo"));
    QCOMPARE(toolButton("Redo")->defaultAction()->text(), QStringLiteral("Redo Loop"));
}

void tst_PanelWindow::undoKeysInAField_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("a check box") << 1;
    QTest::newRow("a line") << 0;
    QTest::newRow("a text") << 2;
}

void tst_PanelWindow::undoKeysInAField()
{
    QFETCH(int, row);
    show();
    QWidget *const fields[] = {title(), loop(), notes()};
    click(loop());
    typeOver(title(), "typed");
    QTest::keyClick(title(), Qt::Key_Return);
    fields[row]->setFocus();

    QTest::keyClick(fields[row], Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(title()->text(), QStringLiteral("Untitled"));
    QTest::keyClick(fields[row], Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!loop()->isChecked());

    QTest::keyClick(fields[row], Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(loop()->isChecked());
    QTest::keyClick(fields[row], Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(stored(0), QVariant(QStringLiteral("typed")));
}

void tst_PanelWindow::undoKeyInAFieldBeingTypedInStaysInTheField()
{
    show();
    click(loop());
    typeOver(title(), "typed");

    QTest::keyClick(title(), Qt::Key_Z, Qt::ControlModifier);

    QVERIFY(title()->text() != QLatin1String("typed"));
    QVERIFY(loop()->isChecked());
}

void tst_PanelWindow::undoTakesBackTextThatIsOnlyTyped()
{
    show();
    click(loop());
    typeOver(title(), "typed");

    click(toolButton("Undo"));

    QCOMPARE(title()->text(), QStringLiteral("Untitled"));
    QVERIFY(loop()->isChecked());
    QCOMPARE(toolButton("Redo")->defaultAction()->text(), QStringLiteral("Redo Title"));
}

void tst_PanelWindow::textFieldBecomesOneStepWhenItLosesTheFocus()
{
    show();
    int changes = 0;
    connect(m_store.get(), &PropertyStore::valueChanged, this, [&changes] { ++changes; });
    typeOver(notes(), "some notes");
    QCOMPARE(changes, 0);

    title()->setFocus();

    m_store->disconnect(this);
    QCOMPARE(changes, 1);
    QCOMPARE(stored(2), QVariant(QStringLiteral("some notes")));
    click(toolButton("Undo"));
    QCOMPARE(notes()->toPlainText(), QString());
    QVERIFY(!m_window->hasUnsavedChanges());
}

void tst_PanelWindow::resetAllIsOneStep()
{
    m_store->setValue(m_list->properties().constFirst(), QStringLiteral("Given"),
                      PropertyStore::NewChange);
    show();
    click(loop());
    typeOver(notes(), "some notes");

    click(button("Reset All"));
    QCOMPARE(title()->text(), QStringLiteral("Untitled"));
    QVERIFY(!loop()->isChecked());
    QCOMPARE(notes()->toPlainText(), QString());
    QCOMPARE(toolButton("Undo")->defaultAction()->text(), QStringLiteral("Undo Reset All"));

    click(toolButton("Undo"));
    QCOMPARE(title()->text(), QStringLiteral("Given"));
    QVERIFY(loop()->isChecked());
    QCOMPARE(notes()->toPlainText(), QStringLiteral("some notes"));
}

void tst_PanelWindow::resetAllWithoutChangesIsNoStep()
{
    show();

    click(button("Reset All"));

    QVERIFY(!toolButton("Undo")->isEnabled());
    QVERIFY(!m_window->hasUnsavedChanges());
}

void tst_PanelWindow::cancelWithoutChangesFinishesAtOnce()
{
    show();

    click(button("Cancel"));

    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Cancelled});
    QVERIFY(m_window->isHidden());
    QVERIFY(!QFile::exists(outputPath()));
}

void tst_PanelWindow::cancelWithChangesAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QVector<int>>("finished");

    QTest::newRow("Save saves") << int(QMessageBox::Save) << QVector<int>{int(ExitStatus::Saved)};
    QTest::newRow("Discard cancels")
        << int(QMessageBox::Discard) << QVector<int>{int(ExitStatus::Cancelled)};
    QTest::newRow("Cancel goes on") << int(QMessageBox::Cancel) << QVector<int>{};
}

void tst_PanelWindow::cancelWithChangesAsks()
{
    QFETCH(int, answer);
    QFETCH(QVector<int>, finished);
    show();
    click(loop());

    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(question() && question()->isVisible());
    QVERIFY(m_finished.isEmpty());
    click(question()->button(static_cast<QMessageBox::StandardButton>(answer)));

    QVector<int> statuses;
    for (ExitStatus status : std::as_const(m_finished))
        statuses.append(static_cast<int>(status));
    QCOMPARE(statuses, finished);
    QCOMPARE(m_window->isVisible(), finished.isEmpty());
    QCOMPARE(QFile::exists(outputPath()), answer == QMessageBox::Save);
}

void tst_PanelWindow::cancelAsksForTextThatIsOnlyTyped()
{
    show();
    typeOver(notes(), "some notes");

    QTest::keyClick(notes(), Qt::Key_Escape);

    QVERIFY(question());
    QVERIFY(m_finished.isEmpty());
}

void tst_PanelWindow::closingWithChangesKeepsTheWindow()
{
    show();
    click(loop());

    QVERIFY(!m_window->close());

    QVERIFY(m_window->isVisible());
    QVERIFY(question());
}

void tst_PanelWindow::secondCancelDoesNotAskTwice()
{
    show();
    click(loop());

    m_window->close();
    m_window->close();

    QCOMPARE(m_window->findChildren<QMessageBox *>().size(), 1);
}

void tst_PanelWindow::savingFromTheQuestion()
{
    show();
    typeOver(title(), "typed");
    m_window->close();

    QTest::keyClick(question(), Qt::Key_Return);

    QCOMPARE(m_finished, QVector<ExitStatus>{ExitStatus::Saved});
    QCOMPARE(saved().value(QStringLiteral("title")), QJsonValue(QStringLiteral("typed")));
}

void tst_PanelWindow::returnInAFieldDoesNotSave()
{
    show();
    typeOver(title(), "typed");

    QTest::keyClick(title(), Qt::Key_Return);

    QVERIFY(m_finished.isEmpty());
    QCOMPARE(stored(0), QVariant(QStringLiteral("typed")));
}

/// Appends a texture row with the textures "Red" and "Blue", and shows the window.
QListWidget *tst_PanelWindow::addTextures(const char *initial)
{
    QVariantList textures;
    for (const char *name : {"Red", "Blue"}) {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(QColor(QLatin1String(name)));
        textures.append(QVariant::fromValue(TextureChoice{QLatin1String(name), image, QIcon()}));
    }
    m_list->append({QStringLiteral("floor"), QStringLiteral("Floor"), kPropertyTypeTexture})
        .setHint(Tessark::PropertyHost::kHostHintTextures, textures)
        .setDefaultValue(
            QVariant::fromValue(TextureChoice{QLatin1String(initial), QImage(), QIcon()}));
    m_list->append({QStringLiteral("format"), QStringLiteral("Format"), kPropertyTypeImageFormat});
    m_list->append({QStringLiteral("image"), QStringLiteral("Image"), kPropertyTypeImage});
    m_store->reset(*m_list);
    m_list->setFolder(m_folder->path());
    show();
    return m_window->findChild<QListWidget *>();
}

void tst_PanelWindow::pickedTextureIsAStep()
{
    QListWidget *const list = addTextures("Red");
    QVERIFY(!m_window->hasUnsavedChanges());
    QCOMPARE(list->currentRow(), 0);

    clickRow(list, 1);
    QVERIFY(m_window->hasUnsavedChanges());
    m_window->undo();

    QCOMPARE(list->currentRow(), 0);
    QVERIFY(!m_window->hasUnsavedChanges());
    m_window->redo();
    m_window->save();
    QCOMPARE(saved().value(QStringLiteral("floor")), QJsonValue(QStringLiteral("Blue")));
}

void tst_PanelWindow::resetAllShowsTheDefaultTexture()
{
    QListWidget *const list = addTextures("Red");
    m_window->resetAll();
    QVERIFY(!m_window->hasUnsavedChanges());

    clickRow(list, 1);
    m_window->resetAll();

    QCOMPARE(list->currentRow(), 0);
    m_window->save();
    QCOMPARE(saved().value(QStringLiteral("floor")), QJsonValue(QStringLiteral("Red")));
}

void tst_PanelWindow::resetAllToNoTexture()
{
    QListWidget *const list = addTextures("");
    QCOMPARE(list->currentRow(), -1);
    clickRow(list, 1);

    m_window->resetAll();

    QVERIFY(list->selectedItems().isEmpty());
    m_window->save();
    QCOMPARE(saved().value(QStringLiteral("floor")), QJsonValue(QString()));
}

void tst_PanelWindow::pictureGoesBackToItsDefault()
{
    const auto write = [this](const char *name, Qt::GlobalColor color) {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(color);
        return image.save(m_folder->filePath(QLatin1String(name)));
    };
    QVERIFY(write("red.png", Qt::red) && write("blue.png", Qt::blue));
    const Property image(QStringLiteral("image"), QStringLiteral("Image"), kPropertyTypeImage);
    m_list->setFolder(m_folder->path());
    QString error;
    m_list->append(image).setDefaultValue(
        *valueFromJson(image, QStringLiteral("red.png"), error, m_folder->path()));
    m_store->reset(*m_list);
    QVERIFY(m_store->readValues(R"({"image": "blue.png"})", *m_list).isEmpty());
    show();
    QCOMPARE(m_store->toJson(*m_list).value(QStringLiteral("image")),
             QJsonValue(QStringLiteral("blue.png")));

    m_window->findChild<ImagePropertyEditor *>()->revertToDefaultValue();
    QCOMPARE(m_store->toJson(*m_list).value(QStringLiteral("image")),
             QJsonValue(QStringLiteral("red.png")));

    m_window->undo();
    QCOMPARE(m_store->toJson(*m_list).value(QStringLiteral("image")),
             QJsonValue(QStringLiteral("blue.png")));
    QVERIFY(!m_window->hasUnsavedChanges());
}

void tst_PanelWindow::droppedPicturesAreNoChange()
{
    QListWidget *const list = addTextures("Red");
    QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(m_folder->filePath(QStringLiteral("a.png"))));

    drop(list, m_folder->filePath(QStringLiteral("a.png")));

    QCOMPARE(list->count(), 3);
    QCOMPARE(list->item(2)->text(), QStringLiteral("a.png"));
    QVERIFY(!m_window->hasUnsavedChanges());
    clickRow(list, 2);
    m_window->save();
    QCOMPARE(saved().value(QStringLiteral("floor")), QJsonValue(QStringLiteral("a.png")));
}

void tst_PanelWindow::unreadableDropsAreShown()
{
    QListWidget *const list = addTextures("Red");
    const auto *const banner = m_window->findChild<QLabel *>(QStringLiteral("errorBanner"));
    QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(m_folder->filePath(QStringLiteral("a.png"))));

    drop(list, m_folder->path());
    QVERIFY(banner->isVisible());
    QCOMPARE(banner->text(), QStringLiteral("\"%1\" is not a file").arg(m_folder->path()));
    QCOMPARE(list->count(), 2);

    drop(list, m_folder->filePath(QStringLiteral("a.png")));
    QVERIFY(!banner->isVisible());
}

void tst_PanelWindow::groupOnATabPageFolds()
{
    m_list->append({QString(), QString(), kPropertyTypeBeginTabGroup});
    m_list->append({QString(), QStringLiteral("Page"), kPropertyTypeTab});
    m_list->append({QString(), QStringLiteral("Group"), kPropertyTypeBeginGroup});
    m_list->append({QStringLiteral("inner"), QStringLiteral("Inner"), kPropertyTypeString});
    m_list->append({QString(), QString(), kPropertyTypeEndGroup});
    m_list->append({QString(), QString(), kPropertyTypeEndTabGroup});
    show();
    auto *const page = m_window->findChild<QTabWidget *>()->widget(0);
    auto *const group = page->findChild<QCheckBox *>();
    auto *const inner = page->findChild<QLineEdit *>();
    QVERIFY(inner->isVisible());

    click(group);
    QVERIFY(!inner->isVisible());
    QVERIFY(!m_window->hasUnsavedChanges());
    click(group);
    QVERIFY(inner->isVisible());
}

void tst_PanelWindow::foldingIsAStepWithoutChange()
{
    m_list->append({QString(), QStringLiteral("Group"), kPropertyTypeBeginGroup});
    m_list->append({QStringLiteral("inner"), QStringLiteral("Inner"), kPropertyTypeString});
    m_list->append({QString(), QString(), kPropertyTypeEndGroup});
    show();
    QLineEdit *const inner = m_window->findChildren<QLineEdit *>().constLast();
    auto *const group = m_window->findChildren<QCheckBox *>().constLast();
    QCOMPARE(group->text(), QStringLiteral("Group"));

    click(group);
    QVERIFY(!inner->isVisible());
    QCOMPARE(toolButton("Undo")->defaultAction()->text(), QStringLiteral("Undo Group"));
    QVERIFY(!m_window->hasUnsavedChanges());
    QVERIFY(!m_window->isWindowModified());

    QTest::keyClick(group, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(inner->isVisible());
    click(toolButton("Redo"));
    QVERIFY(!inner->isVisible());

    click(loop());
    QVERIFY(m_window->hasUnsavedChanges());
    QVERIFY(m_window->isWindowModified());
}

void tst_PanelWindow::modifiedMarkFollowsTheValues()
{
    show();
    QVERIFY(!m_window->isWindowModified());

    click(loop());
    QVERIFY(m_window->isWindowModified());

    click(loop());
    click(toolButton("Undo"));
    click(toolButton("Undo"));
    QVERIFY(!m_window->isWindowModified());
}

void tst_PanelWindow::wholePanelFitsTheSizeHint()
{
    // Rows over the full width do not count in the width that a panel asks for.
    m_list->append({QStringLiteral("wide"), QString(120, QLatin1Char('m')), kPropertyTypeAction})
        .setHint(kPropertyHintFullWidth, true);
    m_list->append({QString(), QString(), kPropertyTypeBeginTabGroup});
    m_list->append({QString(), QStringLiteral("Page"), kPropertyTypeTab});
    m_list->append({QStringLiteral("fixed"), QStringLiteral("Fixed"), kPropertyTypeAction})
        .setHint(kPropertyHintFullWidth, true)
        .setHint(kPropertyHintSize, QSize(1500, 30));
    m_list->append({QString(), QString(), kPropertyTypeEndTabGroup});
    show();
    auto *const panel = m_window->findChild<PropertyEditorPanel *>();

    const auto buttons = panel->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 2);
    for (QPushButton *button : buttons) {
        const QWidget *const parent = button->parentWidget();
        QVERIFY(button->width() >= button->sizeHint().width());
        QVERIFY(button->geometry().right() < parent->width());
        QVERIFY(button->mapTo(panel, QPoint(button->width(), 0)).x() <= panel->width());
    }
}

void tst_PanelWindow::windowMayBeDeletedWhenFinished()
{
    show();
    connect(m_window.get(), &PanelWindow::finished, this,
            [this] { m_window.release()->deleteLater(); });
    PanelWindow *const window = m_window.get();
    QSignalSpy destroyed(window, &QObject::destroyed);

    click(button("Cancel"));

    QTRY_COMPARE(destroyed.size(), 1);
}

void tst_PanelWindow::rulesHold()
{
    m_list->string(QStringLiteral("ruled"), QString()).visibleWhen(QStringLiteral("loop"));
    m_store->reset(*m_list);
    show();
    QLineEdit *const ruled = m_window->findChildren<QLineEdit *>().constLast();
    const bool before = ruled->isVisible();
    QCOMPARE(before, loop()->isChecked());

    click(loop());
    QCOMPARE(ruled->isVisible(), !before);
    m_window->undo();
    QCOMPARE(ruled->isVisible(), before);
    m_window->redo();
    QCOMPARE(ruled->isVisible(), !before);
    m_window->resetAll();
    QCOMPARE(ruled->isVisible(), before);
}

/// As of a value that was outside of the range from the start: what is shown does not replace it.
void tst_PanelWindow::valueCutByARuleIsNoEdit()
{
    m_list->integer(QStringLiteral("most"), QString()).range(0, 100).defaultValue(50);
    m_list->integer(QStringLiteral("ruled"), QString())
        .range(0, 100)
        .defaultValue(40)
        .maximumFollows(QStringLiteral("most"));
    m_store->reset(*m_list);
    show();
    const auto fields = m_window->findChildren<QSpinBox *>();
    typeOver(fields.first(), "30");
    QCOMPARE(fields.last()->value(), 30);

    title()->setFocus();
    m_window->save();

    QCOMPARE(saved().value(QLatin1String("most")).toInt(), 30);
    QCOMPARE(saved().value(QLatin1String("ruled")).toInt(), 40);
}

QTEST_MAIN(tst_PanelWindow)
#include "tst_PanelWindow.moc"
