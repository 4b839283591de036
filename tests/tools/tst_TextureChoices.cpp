#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>
#include <property/editors/TexturePropertyEditor.h>
#include <tools/property-panel/TextureChoices.h>

#include <support/FileDrag.h>
#include <support/PictureFolder.h>

#include <QDir>
#include <QJsonObject>
#include <QListWidget>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <QUrl>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyHost::readPropertyList;
using Tessark::PropertyHost::UndoDelegate;
using Tessark::PropertyPanel::TextureChoices;

class tst_TextureChoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void rowOffersTheHint();
    void valueAndDefaultAreOfferedToo();
    void valueWithoutNameSelectsNothing();
    void textValueIsATexture();
    void pickReachesTheDelegateOnce();
    void defaultReachesTheDelegate();
    void defaultIsOneStepToUndo();
    void defaultThatIsShownIsNoChange();
    void refreshShowsTheDelegatesValue();
    void refreshForgetsThePick();
    void refreshToNoTexture();
    void droppedPicturesAreAdded();
    void droppedPictureOutsideKeepsItsPath();
    void droppedPictureIsAddedOnce();
    void droppedPictureCanBePickedAndUndone();
    void dropKeepsTheSelection_data();
    void dropKeepsTheSelection();
    void dropShowsTheNewRow();
    void unreadableDropsAreTold();
    void rowsAreApart();
    void otherRowsAreLeftAlone();
    void panelMayGoFirst();
    void hostMayDeleteEverythingInAChange();

private:
    /// Makes list, store, panel and choices of rows in JSON.
    void build(const QByteArray &rows, const QByteArray &values = "{}");
    QListWidget *list(int row = 0) const
    {
        return m_panel->findChildren<QListWidget *>().value(row);
    }
    TexturePropertyEditor *editor() const { return m_panel->findChild<TexturePropertyEditor *>(); }
    QStringList names(int row = 0) const;
    QString selected(int row = 0) const;
    QString stored(const char *name = "t") const
    {
        return m_store->toJson(m_list).value(QLatin1String(name)).toString();
    }
    void pick(const char *name) const;
    void drop(const QStringList &paths, int row = 0) const;
    QString path(const char *name) const { return m_pictures.filePath(QLatin1String(name)); }

    PictureFolder m_pictures;
    PictureFolder m_elsewhere;
    PropertyList m_list;
    std::unique_ptr<PropertyStore> m_store;
    QUndoStack m_stack;
    std::unique_ptr<UndoDelegate> m_delegate;
    std::unique_ptr<PropertyEditorPanel> m_panel;
    std::unique_ptr<TextureChoices> m_choices;
};

namespace {

const QByteArray kRow = R"({"name": "t", "type": "texture", "default": "Sand", "hints": {
    "textures": [{"file": "red.png", "name": "Brick"}, {"file": "yellow.png", "name": "Sand"}]}})";

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

void tst_TextureChoices::initTestCase()
{
    QVERIFY(QDir(m_pictures.path()).mkdir(QStringLiteral("sub")));
    m_pictures.addPicture(QStringLiteral("red.png"), Qt::red);
    m_pictures.addPicture(QStringLiteral("yellow.png"), Qt::yellow);
    m_pictures.addPicture(QStringLiteral("sub/blue.png"), Qt::blue);
    m_pictures.addFile(QStringLiteral("text.png"), "no picture");
    m_elsewhere.addPicture(QStringLiteral("green.png"), Qt::green);
}

void tst_TextureChoices::init()
{
    build(kRow);
}

void tst_TextureChoices::cleanup()
{
    m_choices.reset();
    m_panel.reset();
    m_delegate.reset();
    m_stack.clear();
    m_store.reset();
}

void tst_TextureChoices::build(const QByteArray &rows, const QByteArray &values)
{
    cleanup();
    auto result =
        readPropertyList(R"({"version": 1, "properties": [)" + rows + "]}", m_pictures.path());
    QVERIFY(result.problems.isEmpty());
    m_list = std::move(result.list);
    m_store = std::make_unique<PropertyStore>();
    m_store->reset(m_list);
    QVERIFY(m_store->readValues(values, m_list).isEmpty());
    m_delegate = std::make_unique<UndoDelegate>(m_store.get(), &m_stack);
    m_panel = std::make_unique<PropertyEditorPanel>(m_list.properties(), m_delegate.get(), nullptr);
    m_panel->updateUI();
    m_choices = std::make_unique<TextureChoices>(*m_panel, m_delegate.get(), m_list.folder());
    connect(m_delegate.get(), &UndoDelegate::valueRestored, m_choices.get(), [this] {
        m_panel->updateUI();
        m_choices->refresh();
    });
    m_panel->resize(400, 400);
    m_panel->show();
}

QStringList tst_TextureChoices::names(int row) const
{
    QStringList result;
    for (int i = 0; i < list(row)->count(); ++i)
        result.append(list(row)->item(i)->text());
    return result;
}

QString tst_TextureChoices::selected(int row) const
{
    const auto items = list(row)->selectedItems();
    return items.isEmpty() ? QString() : items.constFirst()->text();
}

void tst_TextureChoices::pick(const char *name) const
{
    const auto items = list()->findItems(QString::fromLatin1(name), Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    list()->scrollToItem(items.constFirst());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                      list()->visualItemRect(items.constFirst()).center());
}

void tst_TextureChoices::drop(const QStringList &paths, int row) const
{
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    mime.setUrls(urls);
    sendDragEvent<QDragEnterEvent>(list(row)->viewport(), QPoint(9, 9), {mime});
    sendDragEvent<QDropEvent>(list(row)->viewport(), QPoint(9, 9), {mime});
}

void tst_TextureChoices::rowOffersTheHint()
{
    QCOMPARE(names(), words("Brick Sand"));
    QCOMPARE(selected(), QStringLiteral("Sand"));
    QVERIFY(!list()->item(0)->icon().isNull());
    QVERIFY(m_stack.count() == 0);
}

void tst_TextureChoices::valueAndDefaultAreOfferedToo()
{
    build(R"({"name": "t", "type": "texture", "default": "yellow.png",
              "hints": {"textures": ["red.png"]}})",
          R"({"t": "sub/blue.png"})");

    QCOMPARE(names(), words("red.png yellow.png sub/blue.png"));
    QCOMPARE(selected(), QStringLiteral("sub/blue.png"));
}

void tst_TextureChoices::valueWithoutNameSelectsNothing()
{
    build(R"({"name": "t", "type": "texture", "hints": {"textures": ["red.png"]}})");

    QCOMPARE(names(), words("red.png"));
    QCOMPARE(selected(), QString());
    QCOMPARE(stored(), QString());
}

void tst_TextureChoices::textValueIsATexture()
{
    m_store->setValue(m_list.properties().first(), QStringLiteral("Brick"),
                      IPropertyEditorDelegate::NewChange);

    m_choices->refresh();

    QCOMPARE(selected(), QStringLiteral("Brick"));
}

void tst_TextureChoices::pickReachesTheDelegateOnce()
{
    QSignalSpy spy(m_store.get(), &PropertyStore::valueChanged);

    pick("Brick");

    QCOMPARE(spy.count(), 1);
    QCOMPARE(stored(), QStringLiteral("Brick"));
    QCOMPARE(m_stack.count(), 1);
    QCOMPARE(editor()->value().value<TextureChoice>().name, QStringLiteral("Brick"));
}

void tst_TextureChoices::defaultReachesTheDelegate()
{
    pick("Brick");

    editor()->revertToDefaultValue();

    QCOMPARE(selected(), QStringLiteral("Sand"));
    QCOMPARE(stored(), QStringLiteral("Sand"));
    // A host that reads the editor must not be told the texture of before.
    QVERIFY(!editor()->value().isValid());
}

void tst_TextureChoices::defaultIsOneStepToUndo()
{
    pick("Brick");
    editor()->revertToDefaultValue();
    QCOMPARE(m_stack.count(), 2);

    m_stack.undo();

    QCOMPARE(stored(), QStringLiteral("Brick"));
    QCOMPARE(selected(), QStringLiteral("Brick"));
    m_stack.undo();
    QCOMPARE(stored(), QStringLiteral("Sand"));
    QCOMPARE(selected(), QStringLiteral("Sand"));

    editor()->revertToDefaultValue();
    QCOMPARE(stored(), QStringLiteral("Sand"));
    QCOMPARE(m_stack.index(), 0);
}

void tst_TextureChoices::defaultThatIsShownIsNoChange()
{
    editor()->revertToDefaultValue();

    QCOMPARE(m_stack.count(), 0);
    QCOMPARE(stored(), QStringLiteral("Sand"));
}

void tst_TextureChoices::refreshShowsTheDelegatesValue()
{
    Property *const property = m_list.properties().first();
    const auto brick =
        property->hint(QStringLiteral("textures")).toList().constFirst().value<TextureChoice>();
    m_store->setValue(property, QVariant::fromValue(brick), IPropertyEditorDelegate::NewChange);

    m_choices->refresh();

    QCOMPARE(selected(), QStringLiteral("Brick"));
}

void tst_TextureChoices::refreshForgetsThePick()
{
    pick("Brick");

    m_choices->refresh();

    QCOMPARE(selected(), QStringLiteral("Brick"));
    QVERIFY(!editor()->value().isValid());
    QCOMPARE(stored(), QStringLiteral("Brick"));
    pick("Sand");
    QCOMPARE(stored(), QStringLiteral("Sand"));
}

void tst_TextureChoices::refreshToNoTexture()
{
    pick("Brick");
    QSignalSpy spy(m_store.get(), &PropertyStore::valueChanged);

    m_store->setValue(m_list.properties().first(), QVariant::fromValue(TextureChoice()),
                      IPropertyEditorDelegate::NewChange);
    m_choices->refresh();

    QCOMPARE(selected(), QString());
    QCOMPARE(stored(), QString());
    QCOMPARE(spy.count(), 1);
}

void tst_TextureChoices::droppedPicturesAreAdded()
{
    QSignalSpy spy(m_choices.get(), &TextureChoices::filesDropped);

    drop({path("sub/blue.png"), path("red.png")});

    QCOMPARE(names(), words("Brick Sand sub/blue.png red.png"));
    QVERIFY(!list()->item(2)->icon().isNull());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toStringList(), QStringList());
    QCOMPARE(stored(), QStringLiteral("Sand"));
    QCOMPARE(m_stack.count(), 0);
}

void tst_TextureChoices::droppedPictureOutsideKeepsItsPath()
{
    const QString green = m_elsewhere.filePath(QStringLiteral("green.png"));

    drop({green});

    QCOMPARE(names(), words("Brick Sand") + QStringList{green});
}

void tst_TextureChoices::droppedPictureIsAddedOnce()
{
    drop({path("red.png"), path("red.png")});
    drop({path("red.png")});

    QCOMPARE(names(), words("Brick Sand red.png"));
}

void tst_TextureChoices::droppedPictureCanBePickedAndUndone()
{
    drop({path("sub/blue.png")});
    pick("sub/blue.png");
    QCOMPARE(stored(), QStringLiteral("sub/blue.png"));

    m_stack.undo();
    QCOMPARE(selected(), QStringLiteral("Sand"));
    QCOMPARE(names(), words("Brick Sand sub/blue.png"));

    m_stack.redo();
    QCOMPARE(selected(), QStringLiteral("sub/blue.png"));
    QCOMPARE(stored(), QStringLiteral("sub/blue.png"));
}

void tst_TextureChoices::dropKeepsTheSelection_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QByteArray>("picked");
    QTest::addColumn<QString>("selected");

    QTest::newRow("of the value") << QByteArray("{}") << QByteArray() << QStringLiteral("Sand");
    QTest::newRow("of the pick") << QByteArray("{}") << QByteArray("Brick")
                                 << QStringLiteral("Brick");
    QTest::newRow("of nothing") << QByteArray(R"({"t": ""})") << QByteArray() << QString();
}

void tst_TextureChoices::dropKeepsTheSelection()
{
    QFETCH(QByteArray, values);
    QFETCH(QByteArray, picked);
    build(kRow, values);
    if (!picked.isEmpty())
        pick(picked.constData());
    const int steps = m_stack.count();

    drop({path("sub/blue.png")});

    QTEST(selected(), "selected");
    QCOMPARE(stored(), selected());
    QCOMPARE(m_stack.count(), steps);
}

void tst_TextureChoices::dropShowsTheNewRow()
{
    for (int i = 0; i < 9; ++i)
        m_pictures.addPicture(QStringLiteral("many%1.png").arg(i), Qt::gray);
    QStringList paths;
    for (int i = 0; i < 9; ++i)
        paths.append(m_pictures.filePath(QStringLiteral("many%1.png").arg(i)));

    drop(paths);

    const QRect last = list()->visualItemRect(list()->item(list()->count() - 1));
    QVERIFY(list()->viewport()->rect().contains(last));
}

void tst_TextureChoices::unreadableDropsAreTold()
{
    QSignalSpy spy(m_choices.get(), &TextureChoices::filesDropped);

    drop({path("text.png"), path("sub/blue.png"), path("sub")});

    QCOMPARE(names(), words("Brick Sand sub/blue.png"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(
        spy.first().first().toStringList(),
        (QStringList{QStringLiteral("\"%1\" cannot be read as a picture: Unsupported image format")
                         .arg(path("text.png")),
                     QStringLiteral("\"%1\" is not a file").arg(path("sub"))}));
}

void tst_TextureChoices::rowsAreApart()
{
    build(R"({"name": "a", "type": "texture"}, {"name": "t", "type": "texture"})");

    drop({path("red.png")}, 1);

    QCOMPARE(names(0), QStringList());
    QCOMPARE(names(1), words("red.png"));
}

void tst_TextureChoices::otherRowsAreLeftAlone()
{
    build(R"({"name": "s", "type": "string", "default": "x",
              "hints": {"textures": ["red.png"]}})");
    QVERIFY(!list());

    m_choices->refresh();

    QCOMPARE(stored("s"), QStringLiteral("x"));
}

void tst_TextureChoices::panelMayGoFirst()
{
    m_panel.reset();

    m_choices->refresh();

    QCOMPARE(stored(), QStringLiteral("Sand"));
}

void tst_TextureChoices::hostMayDeleteEverythingInAChange()
{
    pick("Brick");
    TexturePropertyEditor *const reverted = editor();
    connect(m_store.get(), &PropertyStore::valueChanged, this,
            [this](Property *, const QVariant &value) {
                if (value.value<TextureChoice>().name != QLatin1String("Sand"))
                    return;
                m_choices.reset();
                m_panel.reset();
            });

    reverted->revertToDefaultValue();

    QVERIFY(!m_panel);
    QCOMPARE(stored(), QStringLiteral("Sand"));
}

QTEST_MAIN(tst_TextureChoices)
#include "tst_TextureChoices.moc"
