#include <property/PropertyUI.h>
#include <property/editors/TexturePropertyEditor.h>

#include "support/EditorFixture.h"
#include "support/FileDrag.h"
#include "support/SignalLog.h"

#include <core/DropAcceptingListWidget.h>

#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <functional>
#include <limits>
#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::UI::DropAcceptingListWidget;

using Fixture = EditorFixture<TexturePropertyEditor, DropAcceptingListWidget>;
using FixtureAction = std::function<void(Fixture &)>;
Q_DECLARE_METATYPE(FixtureAction)

namespace {

const QStringList kFive = {QStringLiteral("wood"), QStringLiteral("stone"), QStringLiteral("brick"),
                           QStringLiteral("grass"), QStringLiteral("sand")};

QIcon plainIcon(const QColor &color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(color);
    return QIcon(pixmap);
}

/// One texture for each name, with an image as wide as its place in the list.
QVector<TextureChoice> texturesOf(const QStringList &names)
{
    QVector<TextureChoice> textures;
    for (const QString &name : names) {
        QImage image(int(textures.size()) + 1, 1, QImage::Format_RGB32);
        image.fill(Qt::red);
        textures.append({name, image, plainIcon(Qt::red)});
    }
    return textures;
}

QVariant choice(const QString &name)
{
    return QVariant::fromValue(TextureChoice{name, QImage(), QIcon()});
}

/// The name of the editor's value, which must be a texture.
QString valueName(const PropertyEditor &editor)
{
    return editor.value().value<TextureChoice>().name;
}

/// Clicks the row as a user does.
void pick(QListWidget *list, int row)
{
    list->scrollToItem(list->item(row));
    const QRect rect = list->visualItemRect(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
}

QVector<int> selectedRows(const QListWidget *list)
{
    QVector<int> rows;
    for (const QListWidgetItem *item : list->selectedItems())
        rows.append(list->row(item));
    return rows;
}

} // namespace

class tst_TexturePropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void registryMakesIt();
    void hostMayConnectByName();
    void nothingBeforeTheWidget();
    void widgetIsAListOfItsOwnSize();
    void widgetIsBuiltOnceWithoutParent();

    void texturesBeforeTheWidgetAreNotShown();
    void setTexturesFillsTheList();
    void setTexturesReplacesTheList();
    void itemsWithoutIconOrName();
    void setTexturesWithoutPickIsSilent_data();
    void setTexturesWithoutPickIsSilent();
    void pickedNameIsShownAgainButNotTheValue();
    void pickingTheShownRowSendsNothing();
    void pickedNameThatIsGoneIsAnnounced();
    void pickedNameThatIsGoneIsAnnouncedOnce();
    void pickedTextureWithoutName();
    void firstOfEqualNamesIsShown();
    void namesAreComparedExactly_data();
    void namesAreComparedExactly();
    void indexWithoutWidget();

    void setValueShowsTheRow_data();
    void setValueShowsTheRow();
    void setValueThatFitsNothing_data();
    void setValueThatFitsNothing();
    void setValueKeepsTheValue();
    void setValueBeforeTheListIsFilled();
    void setValuesShowsTheFirst();
    void revertingShowsTheDefaultAndEmits();

    void eachPickIsAnnouncedOnce();
    void keysPickToo();
    void valueIsACopy();
    void noCurrentRowGivesNoValue();
    void indexOutsideTheTextures();
    void enabledHintIsNotRead();

    void dropsFollowTheFlag();
    void droppedPathsArriveUnchanged();
    void droppedFilesReachTheEditor();

    void editorMayDieOnAPick();
    void slotMayDeleteAll_data();
    void slotMayDeleteAll();
    void slotMayRefillTheList();
    void slotMayPickAnotherRow();
    void dropMayDeleteAll();

    void tenThousandTextures();
    void panelDeliversThePick();

private:
    DropAcceptingListWidget *show();
    void setTextures(const QStringList &names)
    {
        m_fixture->editor->setTextures(texturesOf(names));
    }

    std::unique_ptr<Fixture> m_fixture;
};

void tst_TexturePropertyEditor::init()
{
    m_fixture = std::make_unique<Fixture>(kPropertyTypeTexture);
}

void tst_TexturePropertyEditor::cleanup()
{
    m_fixture.reset();
}

DropAcceptingListWidget *tst_TexturePropertyEditor::show()
{
    DropAcceptingListWidget *list = m_fixture->build();
    list->show();
    return QTest::qWaitForWindowExposed(list) ? list : nullptr;
}

void tst_TexturePropertyEditor::registryMakesIt()
{
    PropertyEditorPanel::InitialiseRegistry();
    const auto factory = PropertyEditorRegistry::Instance()->factory(&m_fixture->property);
    QVERIFY(factory);

    const std::unique_ptr<PropertyEditor> editor(factory(&m_fixture->property));

    QVERIFY(qobject_cast<TexturePropertyEditor *>(editor.get()));
    QCOMPARE(editor->editedProperty(), &m_fixture->property);
    QVERIFY(!editor->parent());
}

void tst_TexturePropertyEditor::hostMayConnectByName()
{
    const QMetaObject &meta = TexturePropertyEditor::staticMetaObject;

    QCOMPARE(meta.className(), "Tessark::PropertyUI::TexturePropertyEditor");
    QVERIFY(meta.indexOfSignal("droppedUrls(QStringList)") >= 0);
    QVERIFY(meta.indexOfSlot("listSelectionChanged(int)") >= 0);
    QCOMPARE(meta.propertyCount(), PropertyEditor::staticMetaObject.propertyCount());
}

void tst_TexturePropertyEditor::nothingBeforeTheWidget()
{
    TexturePropertyEditor &editor = *m_fixture->editor;
    SignalLog log(&editor);

    editor.setValue(choice(QStringLiteral("wood")));
    editor.setAcceptUrlsDrops(true);

    QVERIFY(!editor.value().isValid());
    QCOMPARE(editor.texturesCount(), 0);
    QVERIFY(!editor.acceptUrlsDrops());
    QVERIFY(!m_fixture->build()->acceptUrlsDrops());
    QVERIFY(!editor.value().isValid());
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::widgetIsAListOfItsOwnSize()
{
    const DropAcceptingListWidget *const list = m_fixture->build();

    QVERIFY(list);
    QCOMPARE(list->minimumHeight(), 128);
    QCOMPARE(list->maximumHeight(), 128);
    QCOMPARE(list->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(list->iconSize(), QSize(32, 32));
    QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(list->count(), 0);
    QVERIFY(!list->acceptUrlsDrops());
}

void tst_TexturePropertyEditor::widgetIsBuiltOnceWithoutParent()
{
    const DropAcceptingListWidget *const list = m_fixture->build();

    QVERIFY(!list->parent());
    QCOMPARE(m_fixture->editor->widget(nullptr), list);
}

void tst_TexturePropertyEditor::texturesBeforeTheWidgetAreNotShown()
{
    SignalLog log(m_fixture->editor.get());
    setTextures(kFive);
    QCOMPARE(m_fixture->editor->texturesCount(), 5);

    const DropAcceptingListWidget *const list = m_fixture->build();
    QCOMPARE(list->count(), 0);

    setTextures(kFive);
    QCOMPARE(list->count(), 5);
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::setTexturesFillsTheList()
{
    const DropAcceptingListWidget *const list = show();

    setTextures(kFive);

    QCOMPARE(m_fixture->editor->texturesCount(), 5);
    QCOMPARE(list->count(), 5);
    for (int row = 0; row < 5; ++row) {
        const QListWidgetItem *const item = list->item(row);
        QCOMPARE(item->text(), kFive.at(row));
        QCOMPARE(item->type(), int(QListWidgetItem::Type));
        QCOMPARE(item->sizeHint(), QSize(32, 32));
        QCOMPARE(item->icon().pixmap(32, 32).toImage().pixelColor(5, 5), QColor(Qt::red));
    }
    QCOMPARE(list->currentRow(), -1);
    QCOMPARE(selectedRows(list), QVector<int>());
}

void tst_TexturePropertyEditor::setTexturesReplacesTheList()
{
    const DropAcceptingListWidget *const list = show();
    setTextures(kFive);

    setTextures({QStringLiteral("new")});
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->item(0)->text(), QStringLiteral("new"));

    setTextures({});
    QCOMPARE(list->count(), 0);
    QCOMPARE(m_fixture->editor->texturesCount(), 0);
}

void tst_TexturePropertyEditor::itemsWithoutIconOrName()
{
    const DropAcceptingListWidget *const list = show();

    m_fixture->editor->setTextures({TextureChoice()});

    QCOMPARE(list->count(), 1);
    QVERIFY(list->item(0)->icon().isNull());
    QCOMPARE(list->item(0)->text(), QString());
    QCOMPARE(list->item(0)->sizeHint(), QSize(32, 32));
}

void tst_TexturePropertyEditor::setTexturesWithoutPickIsSilent_data()
{
    QTest::addColumn<QString>("shown"); // by setValue() before

    QTest::newRow("nothing shown") << QString();
    QTest::newRow("shown, not picked") << kFive.at(2);
}

void tst_TexturePropertyEditor::setTexturesWithoutPickIsSilent()
{
    QFETCH(const QString, shown);
    const DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    m_fixture->editor->setValue(shown);
    SignalLog log(m_fixture->editor.get());

    setTextures(kFive);
    setTextures({});

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(list->currentRow(), -1);
}

void tst_TexturePropertyEditor::pickedNameIsShownAgainButNotTheValue()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 2);
    SignalLog log(m_fixture->editor.get());
    QSignalSpy rows(list, &QListWidget::currentRowChanged);

    setTextures({kFive.at(2), kFive.at(0)});

    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(selectedRows(list), QVector<int>{0});
    QCOMPARE(log.take(), QStringList());
    QVERIFY(rows.isEmpty());
    QVERIFY(!list->signalsBlocked());
    QVERIFY(!m_fixture->editor->value().isValid());

    // Nor is it remembered for the next list.
    setTextures({kFive.at(0)});
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::pickingTheShownRowSendsNothing()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 2);
    setTextures(kFive);
    SignalLog log(m_fixture->editor.get());

    pick(list, 2);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!m_fixture->editor->value().isValid());

    pick(list, 1);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(valueName(*m_fixture->editor), kFive.at(1));
}

void tst_TexturePropertyEditor::pickedNameThatIsGoneIsAnnounced()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 2);
    SignalLog log(m_fixture->editor.get());

    setTextures({kFive.at(0), kFive.at(1)});

    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(list->currentRow(), -1);
    QCOMPARE(selectedRows(list), QVector<int>());
    QVERIFY(!list->signalsBlocked());
    QVERIFY(!m_fixture->editor->value().isValid());
}

void tst_TexturePropertyEditor::pickedNameThatIsGoneIsAnnouncedOnce()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 2);
    setTextures({});
    SignalLog log(m_fixture->editor.get());

    setTextures({});
    setTextures(kFive);

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(list->currentRow(), -1);
}

void tst_TexturePropertyEditor::pickedTextureWithoutName()
{
    DropAcceptingListWidget *const list = show();
    setTextures({QString(), kFive.at(0)});
    pick(list, 0);
    QVERIFY(m_fixture->editor->value().isValid());
    SignalLog log(m_fixture->editor.get());

    setTextures({QString()});

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(list->currentRow(), -1);
}

void tst_TexturePropertyEditor::firstOfEqualNamesIsShown()
{
    DropAcceptingListWidget *const list = show();
    const QStringList names = {kFive.at(0), kFive.at(1), kFive.at(2), kFive.at(1)};
    setTextures(names);

    m_fixture->editor->setValue(kFive.at(1));
    QCOMPARE(list->currentRow(), 1);

    pick(list, 3);
    setTextures(names);
    QCOMPARE(list->currentRow(), 1);
}

void tst_TexturePropertyEditor::namesAreComparedExactly_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("other case") << QStringLiteral("Wood");
    QTest::newRow("leading space") << QStringLiteral(" wood");
    QTest::newRow("trailing space") << QStringLiteral("wood ");
    QTest::newRow("part") << QStringLiteral("woo");
    QTest::newRow("pattern") << QStringLiteral("w*");
}

void tst_TexturePropertyEditor::namesAreComparedExactly()
{
    QFETCH(const QString, name);
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);

    m_fixture->editor->setValue(name);
    QCOMPARE(list->currentRow(), -1);

    pick(list, 0);
    SignalLog log(m_fixture->editor.get());
    setTextures({name});
    QCOMPARE(list->currentRow(), -1);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

// The slot is open to hosts that connect by name, also while there is no list.
void tst_TexturePropertyEditor::indexWithoutWidget()
{
    TexturePropertyEditor &editor = *m_fixture->editor;
    setTextures(kFive);
    SignalLog log(&editor);

    QMetaObject::invokeMethod(&editor, "listSelectionChanged", Q_ARG(int, 3));
    QCOMPARE(valueName(editor), kFive.at(3));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});

    setTextures(kFive);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QVERIFY(!editor.value().isValid());
}

void tst_TexturePropertyEditor::setValueShowsTheRow_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("texture") << choice(kFive.at(3));
    QTest::newRow("text") << QVariant(kFive.at(3));
}

void tst_TexturePropertyEditor::setValueShowsTheRow()
{
    QFETCH(const QVariant, value);
    const DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    SignalLog log(m_fixture->editor.get());
    QSignalSpy rows(list, &QListWidget::currentRowChanged);
    QSignalSpy selection(list, &QListWidget::itemSelectionChanged);

    m_fixture->editor->setValue(value);

    QCOMPARE(list->currentRow(), 3);
    QCOMPARE(selectedRows(list), QVector<int>{3});
    QCOMPARE(log.take(), QStringList());
    QVERIFY(rows.isEmpty() && selection.isEmpty());
    QVERIFY(!list->signalsBlocked());
    QVERIFY(!m_fixture->editor->value().isValid());
}

void tst_TexturePropertyEditor::setValueThatFitsNothing_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("unknown name") << choice(QStringLiteral("marble"));
    QTest::newRow("unknown text") << QVariant(QStringLiteral("marble"));
    QTest::newRow("texture without name") << choice(QString());
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("number") << QVariant(3);
    QTest::newRow("bytes of a name") << QVariant(QByteArrayLiteral("wood"));
    QTest::newRow("icon") << QVariant(plainIcon(Qt::red));
    QTest::newRow("list of names") << QVariant(kFive);
}

void tst_TexturePropertyEditor::setValueThatFitsNothing()
{
    QFETCH(const QVariant, value);
    DropAcceptingListWidget *const list = show();
    setTextures({QStringLiteral("wood"), QString(), QStringLiteral("3")});
    pick(list, 0);
    m_fixture->editor->setValue(choice(QStringLiteral("3")));
    SignalLog log(m_fixture->editor.get());

    m_fixture->editor->setValue(value);

    QCOMPARE(list->currentRow(), 2);
    QCOMPARE(selectedRows(list), QVector<int>{2});
    QCOMPARE(valueName(*m_fixture->editor), QStringLiteral("wood"));
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::setValueKeepsTheValue()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 1);

    m_fixture->editor->setValue(kFive.at(4));

    QCOMPARE(list->currentRow(), 4);
    QCOMPARE(valueName(*m_fixture->editor), kFive.at(1));
}

void tst_TexturePropertyEditor::setValueBeforeTheListIsFilled()
{
    setTextures(kFive);
    const DropAcceptingListWidget *const list = m_fixture->build();
    SignalLog log(m_fixture->editor.get());

    m_fixture->editor->setValue(kFive.at(2));

    QCOMPARE(list->currentRow(), -1);
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::setValuesShowsTheFirst()
{
    const DropAcceptingListWidget *const list = show();
    setTextures(kFive);

    m_fixture->editor->setValues({kFive.at(2), kFive.at(3)});
    QCOMPARE(list->currentRow(), 2);

    m_fixture->editor->setValues({});
    QCOMPARE(list->currentRow(), 2);
}

void tst_TexturePropertyEditor::revertingShowsTheDefaultAndEmits()
{
    m_fixture->property.setDefaultValue(kFive.at(4));
    const DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    SignalLog log(m_fixture->editor.get());

    m_fixture->editor->revertToDefaultValue();

    QCOMPARE(list->currentRow(), 4);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QVERIFY(!m_fixture->editor->value().isValid());
}

void tst_TexturePropertyEditor::eachPickIsAnnouncedOnce()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    SignalLog log(m_fixture->editor.get());

    for (const int row : {2, 0, 4}) {
        pick(list, row);
        QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
        QCOMPARE(valueName(*m_fixture->editor), kFive.at(row));

        pick(list, row);
        QCOMPARE(log.take(), QStringList());
    }
}

void tst_TexturePropertyEditor::keysPickToo()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 0);
    SignalLog log(m_fixture->editor.get());

    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(valueName(*m_fixture->editor), kFive.at(1));

    QTest::keyClick(list, Qt::Key_End);
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(valueName(*m_fixture->editor), kFive.at(4));
}

void tst_TexturePropertyEditor::valueIsACopy()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 2);

    const QVariant value = m_fixture->editor->value();

    QCOMPARE(value.userType(), qMetaTypeId<TextureChoice>());
    QCOMPARE(value.typeName(), "Tessark::PropertyUI::TextureChoice");
    const auto texture = value.value<TextureChoice>();
    QCOMPARE(texture.name, kFive.at(2));
    QCOMPARE(texture.image.width(), 3);
    QVERIFY(!texture.icon.isNull());

    setTextures({});
    QCOMPARE(value.value<TextureChoice>().name, kFive.at(2));
}

void tst_TexturePropertyEditor::noCurrentRowGivesNoValue()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    pick(list, 2);
    SignalLog log(m_fixture->editor.get());

    list->setCurrentRow(-1);

    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QVERIFY(!m_fixture->editor->value().isValid());
}

void tst_TexturePropertyEditor::indexOutsideTheTextures()
{
    TexturePropertyEditor &editor = *m_fixture->editor;
    show();
    setTextures(kFive);
    SignalLog log(&editor);

    for (const int index : {5, -2, std::numeric_limits<int>::max()}) {
        QMetaObject::invokeMethod(&editor, "listSelectionChanged", Q_ARG(int, index));
        QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
        QVERIFY(!editor.value().isValid());
    }
    setTextures({});
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::enabledHintIsNotRead()
{
    m_fixture->property.setHint(kPropertyHintEnabled, false);
    const DropAcceptingListWidget *const list = m_fixture->build();

    m_fixture->editor->propertyChanged();

    QVERIFY(list->isEnabled());
}

void tst_TexturePropertyEditor::dropsFollowTheFlag()
{
    DropAcceptingListWidget *const list = m_fixture->build();

    m_fixture->editor->setAcceptUrlsDrops(true);
    QVERIFY(m_fixture->editor->acceptUrlsDrops());
    QVERIFY(list->acceptUrlsDrops());

    list->setAcceptUrlsDrops(false);
    QVERIFY(!m_fixture->editor->acceptUrlsDrops());
}

void tst_TexturePropertyEditor::droppedPathsArriveUnchanged()
{
    DropAcceptingListWidget *const list = m_fixture->build();
    QSignalSpy spy(m_fixture->editor.get(), &TexturePropertyEditor::droppedUrls);
    SignalLog log(m_fixture->editor.get());
    const QStringList paths = {QStringLiteral("/b"), QString(), QStringLiteral("/a b"),
                               QStringLiteral("/b")};

    Q_EMIT list->droppedUrls(paths);
    Q_EMIT list->droppedUrls({});

    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).constFirst().toStringList(), paths);
    QCOMPARE(spy.at(1).constFirst().toStringList(), QStringList());
    QCOMPARE(log.take(), QStringList());
}

void tst_TexturePropertyEditor::droppedFilesReachTheEditor()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    m_fixture->editor->setAcceptUrlsDrops(true);
    QMimeData mime;
    mime.setUrls({QUrl(QStringLiteral("file:///b")), QUrl(QStringLiteral("file:///a"))});
    QSignalSpy spy(m_fixture->editor.get(), &TexturePropertyEditor::droppedUrls);
    SignalLog log(m_fixture->editor.get());

    sendDragEvent<QDragEnterEvent>(list->viewport(), QPoint(10, 10), {mime});
    sendDragEvent<QDropEvent>(list->viewport(), QPoint(10, 10), {mime});

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().toStringList(),
             QStringList({QStringLiteral("/b"), QStringLiteral("/a")}));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(list->count(), 5);
}

void tst_TexturePropertyEditor::editorMayDieOnAPick()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    connect(m_fixture->editor.get(), &PropertyEditor::valueChanged, this,
            [this] { m_fixture->editor.reset(); });

    pick(list, 2);

    QVERIFY(!m_fixture->editor);
    pick(list, 3);
    QCOMPARE(list->currentRow(), 3);
}

void tst_TexturePropertyEditor::slotMayDeleteAll_data()
{
    QTest::addColumn<FixtureAction>("action");

    const auto row = [](const char *title, const FixtureAction &action) {
        QTest::newRow(title) << action;
    };
    row("picking a row", [](Fixture &fixture) { pick(fixture.widget.get(), 2); });
    row("setting other textures", [](Fixture &fixture) { fixture.editor->setTextures({}); });
    row("reverting", [](Fixture &fixture) { fixture.editor->revertToDefaultValue(); });
}

// Qt goes on with the list after its signals, so the list is deleted later; the editor need not be.
void tst_TexturePropertyEditor::slotMayDeleteAll()
{
    QFETCH(const FixtureAction, action);
    m_fixture->property.setDefaultValue(kFive.at(0));
    QPointer<DropAcceptingListWidget> list = show();
    setTextures(kFive);
    pick(list, 1);
    connect(m_fixture->editor.get(), &PropertyEditor::valueChanged, this, [this] {
        m_fixture->editor.reset();
        m_fixture->widget.release()->deleteLater();
    });

    action(*m_fixture);

    QVERIFY(!m_fixture->editor);
    QTRY_VERIFY(!list);
}

void tst_TexturePropertyEditor::slotMayRefillTheList()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    int changes = 0;
    connect(m_fixture->editor.get(), &PropertyEditor::valueChanged, this, [&] {
        ++changes;
        setTextures({QStringLiteral("new"), kFive.at(2)});
    });

    pick(list, 2);

    QCOMPARE(changes, 1);
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->currentRow(), 1);
    QVERIFY(!m_fixture->editor->value().isValid());

    pick(list, 0);
    QCOMPARE(changes, 2);
}

void tst_TexturePropertyEditor::slotMayPickAnotherRow()
{
    DropAcceptingListWidget *const list = show();
    setTextures(kFive);
    int changes = 0;
    connect(m_fixture->editor.get(), &PropertyEditor::valueChanged, this, [&] {
        ++changes;
        list->setCurrentRow(4);
    });

    list->setCurrentRow(2);

    QCOMPARE(changes, 2);
    QCOMPARE(valueName(*m_fixture->editor), kFive.at(4));
}

void tst_TexturePropertyEditor::dropMayDeleteAll()
{
    const QPointer<DropAcceptingListWidget> list = show();
    m_fixture->editor->setAcceptUrlsDrops(true);
    connect(m_fixture->editor.get(), &TexturePropertyEditor::droppedUrls, this, [this] {
        m_fixture->widget.reset();
        m_fixture->editor.reset();
    });
    QMimeData mime;
    mime.setUrls({QUrl(QStringLiteral("file:///a"))});

    sendDragEvent<QDragEnterEvent>(list->viewport(), QPoint(10, 10), {mime});
    sendDragEvent<QDropEvent>(list->viewport(), QPoint(10, 10), {mime});

    QVERIFY(!list);
    QVERIFY(!m_fixture->editor);
}

void tst_TexturePropertyEditor::tenThousandTextures()
{
    constexpr int kCount = 10000;
    QStringList names;
    for (int i = 0; i < kCount; ++i)
        names.append(QString::number(i));
    DropAcceptingListWidget *const list = show();
    setTextures(names);
    QCOMPARE(list->count(), kCount);
    SignalLog log(m_fixture->editor.get());

    pick(list, kCount - 1);
    QCOMPARE(valueName(*m_fixture->editor), names.constLast());
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});

    setTextures(names);
    QCOMPARE(list->currentRow(), kCount - 1);
    m_fixture->editor->setValue(names.constFirst());
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(log.take(), QStringList());
}

namespace {

class StoringDelegate : public IPropertyEditorDelegate
{
public:
    void setValue(Property *, const QVariant &value, ChangeFlags flags) override
    {
        values.append(value);
        lastFlags = flags;
    }

    QVariant value(Property *) override { return stored; }

    QVariant stored;
    QVector<QVariant> values;
    ChangeFlags lastFlags{};
};

} // namespace

void tst_TexturePropertyEditor::panelDeliversThePick()
{
    StoringDelegate delegate;
    delegate.stored = choice(kFive.at(3));
    PropertyEditorPanel panel({&m_fixture->property}, &delegate, nullptr);
    panel.show();
    auto *const list = panel.findChild<DropAcceptingListWidget *>();
    auto *const editor = panel.findChild<TexturePropertyEditor *>();
    QVERIFY(list && editor);
    editor->setTextures(texturesOf(kFive));
    panel.updateUI();
    QCOMPARE(list->currentRow(), 3);
    QVERIFY(delegate.values.isEmpty());

    pick(list, 1);

    QCOMPARE(delegate.values.size(), 1);
    QCOMPARE(delegate.values.constFirst().value<TextureChoice>().name, kFive.at(1));
    QVERIFY(!delegate.lastFlags);
}

QTEST_MAIN(tst_TexturePropertyEditor)
#include "tst_TexturePropertyEditor.moc"
