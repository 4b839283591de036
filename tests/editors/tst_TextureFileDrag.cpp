#include <property/PropertyUI.h>
#include <property/editors/TexturePropertyEditor.h>

#include "support/XServer.h"

#include <core/DropAcceptingListWidget.h>

#include <QFile>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::UI::DropAcceptingListWidget;

namespace {

constexpr int kTimeout = 20000; // milliseconds; what is waited for takes a few

/// Another program, in whose window a drag of the URLs starts.
class DragSource
{
public:
    ~DragSource()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(kTimeout))
            m_process.kill();
    }

    /// Starts it with the file that lists the URLs; its window is shown afterwards.
    bool start(const QString &listFile)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(FILE_DRAG_SOURCE), {listFile});
        return QTest::qWaitFor([this] { return !answer("ready").isEmpty(); }, kTimeout);
    }

    /// The point of the screen to drag from.
    QPoint position()
    {
        const QList<QByteArray> numbers = answer("ready").split(' ');
        return QPoint(numbers.value(0).toInt(), numbers.value(1).toInt());
    }

    /// Whether it has said that line, or one that begins with it, since it was started.
    bool hasSaid(const QByteArray &line) { return told().contains('\n' + line); }

    /// The rest of the last line that begins with word; empty when there is none.
    QByteArray answer(const QByteArray &word)
    {
        const auto lines = told().split('\n');
        for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
            if (line->startsWith(word + ' '))
                return line->mid(word.size() + 1);
        }
        return QByteArray();
    }

    /// All that it has said in complete lines, each between line breaks.
    QByteArray told()
    {
        m_output += m_process.readAllStandardOutput();
        return '\n' + m_output.left(m_output.lastIndexOf('\n') + 1);
    }

private:
    QProcess m_process;
    QByteArray m_output;
};

/// Counts the moves of drags over a window, whoever takes them.
class DragMoveCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragMove)
            ++count;
        return false;
    }
};

class NoDelegate : public IPropertyEditorDelegate
{
public:
    void setValue(Property *, const QVariant &, ChangeFlags) override {}
    QVariant value(Property *) override { return QVariant(); }
};

} // namespace

/// Drags files with a real pointer from the window of another program into the list of a texture
/// editor.
class tst_TextureFileDrag : public QObject
{
    Q_OBJECT

public:
    explicit tst_TextureFileDrag(XPointer &pointer)
        : m_pointer(pointer)
    {
    }

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void filesReachTheEditor_data();
    void filesReachTheEditor();
    void manyFilesComeAtOnce();
    void remoteUrlsAreRefused();
    void nothingIsTakenWithTheFlagOff();
    void leavingTakesNothing();
    void flagMayChangeDuringTheDrag();
    void slotMayDeleteThePanel();
    void slotMayDeleteTheWindow();

private:
    bool startDrag(const QList<QUrl> &urls);
    bool hoverOverList();
    bool hoverUntilRefused();
    bool hasAnswer(const QByteArray &action);
    QPoint middleOfList() const { return m_list->mapToGlobal(m_list->rect().center()); }
    bool isDropActive() const { return m_list->property("dropActive").toBool(); }
    QString report();

    XPointer &m_pointer;
    QTemporaryDir m_directory;
    Property m_property{QStringLiteral("texture"), QStringLiteral("Texture"), kPropertyTypeTexture};
    NoDelegate m_delegate;
    DragMoveCounter m_moves;
    QPointer<QWidget> m_window; // with the panel in it
    QPointer<PropertyEditorPanel> m_panel;
    QPointer<TexturePropertyEditor> m_editor;
    QPointer<DropAcceptingListWidget> m_list;
    std::unique_ptr<QSignalSpy> m_dropped;
    std::unique_ptr<DragSource> m_source;
};

void tst_TextureFileDrag::initTestCase()
{
    QVERIFY(m_directory.isValid());
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void tst_TextureFileDrag::init()
{
    m_window = new QWidget;
    m_panel = new PropertyEditorPanel({&m_property}, &m_delegate, nullptr);
    auto *const layout = new QVBoxLayout(m_window);
    layout->addWidget(m_panel);
    m_editor = m_panel->findChild<TexturePropertyEditor *>();
    m_list = m_panel->findChild<DropAcceptingListWidget *>();
    QVERIFY(m_editor && m_list);
    m_editor->setTextures({{QStringLiteral("wood"), QImage(), QIcon()}});
    m_editor->setAcceptUrlsDrops(true);
    m_dropped = std::make_unique<QSignalSpy>(m_editor, &TexturePropertyEditor::droppedUrls);

    m_window->setGeometry(400, 100, 400, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    m_moves.count = 0;
    m_window->windowHandle()->installEventFilter(&m_moves);
}

void tst_TextureFileDrag::cleanup()
{
    m_pointer.release();
    m_source.reset();
    m_dropped.reset();
    delete m_window;
}

/// Starts the other program and takes the URLs up there.
bool tst_TextureFileDrag::startDrag(const QList<QUrl> &urls)
{
    QFile list(m_directory.filePath(QStringLiteral("urls")));
    if (!list.open(QIODevice::WriteOnly))
        return false;
    for (const QUrl &url : urls)
        list.write(url.toEncoded() + '\n');
    list.close();

    m_source = std::make_unique<DragSource>();
    if (!m_source->start(list.fileName()))
        return false;
    const QPoint position = m_source->position();
    m_pointer.moveTo(position);
    m_pointer.press();
    return m_pointer.moveUntil(position + QPoint(30, 30),
                               [this] { return m_source->hasSaid("dragging"); });
}

/// Whether the list shows that it takes the drag, and the source knows.
bool tst_TextureFileDrag::hoverOverList()
{
    return m_pointer.moveUntil(middleOfList(),
                               [this] { return isDropActive() && hasAnswer("copy"); });
}

/// Whether moves have come over the list's window and the source was told nothing of a drop there.
bool tst_TextureFileDrag::hoverUntilRefused()
{
    const int before = m_moves.count;
    return m_pointer.moveUntil(middleOfList(), [&] { return m_moves.count > before + 3; })
           && !isDropActive() && !hasAnswer("copy");
}

bool tst_TextureFileDrag::hasAnswer(const QByteArray &action)
{
    return m_source->answer("action") == action;
}

/// For failures: what the other program said so far.
QString tst_TextureFileDrag::report()
{
    return QStringLiteral("list %1, %2 moves seen; the source said:%3")
        .arg(isDropActive() ? QStringLiteral("active") : QStringLiteral("not active"))
        .arg(m_moves.count)
        .arg(m_source ? QString::fromLatin1(m_source->told()) : QString());
}

void tst_TextureFileDrag::filesReachTheEditor_data()
{
    QTest::addColumn<QStringList>("fileNames");
    QTest::addColumn<QUrl>("remote"); // dragged along between the files

    const QStringList names = {QString::fromUtf8("gr\xc3\xbc\xc3\x9f"
                                                 "e aus K\xc3\xb6ln, 100 %25 #1?.png"),
                               QStringLiteral("plain.png")};
    QTest::newRow("two files") << names << QUrl();
    QTest::newRow("one file") << QStringList{QStringLiteral("plain.png")} << QUrl();
    QTest::newRow("a remote one among them")
        << names << QUrl(QStringLiteral("https://example.com/a.png"));
}

void tst_TextureFileDrag::filesReachTheEditor()
{
    QFETCH(const QStringList, fileNames);
    QFETCH(const QUrl, remote);
    QStringList paths;
    QList<QUrl> urls;
    for (const QString &fileName : fileNames) {
        paths.append(m_directory.filePath(fileName));
        QVERIFY(QFile(paths.constLast()).open(QIODevice::WriteOnly));
        urls.append(QUrl::fromLocalFile(paths.constLast()));
        if (remote.isValid())
            urls.append(remote);
    }

    QVERIFY2(startDrag(urls), qPrintable(report()));
    QVERIFY2(hoverOverList(), qPrintable(report()));
    m_pointer.release();

    QTRY_COMPARE_WITH_TIMEOUT(m_dropped->count(), 1, kTimeout);
    QCOMPARE(m_dropped->constFirst().constFirst().toStringList(), paths);
    QVERIFY(!isDropActive());
    QCOMPARE(m_list->count(), 1);
    // A move was proposed, but nobody is to take the files away.
    QTRY_COMPARE_WITH_TIMEOUT(m_source->answer("finished"), QByteArray("copy"), kTimeout);
    for (const QString &path : paths)
        QVERIFY(QFile::exists(path));
}

void tst_TextureFileDrag::manyFilesComeAtOnce()
{
    QStringList paths;
    QList<QUrl> urls;
    for (int i = 0; i < 10000; ++i) {
        paths.append(QStringLiteral("/no/such/folder/with a texture/%1.png").arg(i));
        urls.append(QUrl::fromLocalFile(paths.constLast()));
    }

    QVERIFY2(startDrag(urls), qPrintable(report()));
    QVERIFY2(hoverOverList(), qPrintable(report()));
    m_pointer.release();

    QTRY_COMPARE_WITH_TIMEOUT(m_dropped->count(), 1, kTimeout);
    QCOMPARE(m_dropped->constFirst().constFirst().toStringList(), paths);
}

void tst_TextureFileDrag::remoteUrlsAreRefused()
{
    QVERIFY2(startDrag({QUrl(QStringLiteral("https://example.com/a.png")),
                        QUrl(QStringLiteral("ftp://example.com/b.png"))}),
             qPrintable(report()));
    QVERIFY2(hoverUntilRefused(), qPrintable(report()));
    m_pointer.release();

    QTRY_COMPARE_WITH_TIMEOUT(m_source->answer("finished"), QByteArray("none"), kTimeout);
    QCOMPARE(m_dropped->count(), 0);
}

void tst_TextureFileDrag::nothingIsTakenWithTheFlagOff()
{
    m_editor->setAcceptUrlsDrops(false);

    QVERIFY2(startDrag({QUrl(QStringLiteral("file:///a"))}), qPrintable(report()));
    QVERIFY2(hoverUntilRefused(), qPrintable(report()));
    m_pointer.release();

    QTRY_COMPARE_WITH_TIMEOUT(m_source->answer("finished"), QByteArray("none"), kTimeout);
    QCOMPARE(m_dropped->count(), 0);
}

void tst_TextureFileDrag::leavingTakesNothing()
{
    QVERIFY2(startDrag({QUrl(QStringLiteral("file:///a"))}), qPrintable(report()));
    QVERIFY2(hoverOverList(), qPrintable(report()));

    QVERIFY2(m_pointer.moveUntil(QPoint(900, 700),
                                 [this] { return !isDropActive() && hasAnswer("none"); }),
             qPrintable(report()));
    m_pointer.release();

    QTRY_COMPARE_WITH_TIMEOUT(m_source->answer("finished"), QByteArray("none"), kTimeout);
    QCOMPARE(m_dropped->count(), 0);
}

void tst_TextureFileDrag::flagMayChangeDuringTheDrag()
{
    m_editor->setAcceptUrlsDrops(false);
    QVERIFY2(startDrag({QUrl(QStringLiteral("file:///a"))}), qPrintable(report()));
    QVERIFY2(hoverUntilRefused(), qPrintable(report()));

    m_editor->setAcceptUrlsDrops(true);
    QVERIFY2(hoverOverList(), qPrintable(report()));

    m_editor->setAcceptUrlsDrops(false);
    QVERIFY(!isDropActive());
    QVERIFY2(m_pointer.moveUntil(middleOfList(), [this] { return hasAnswer("none"); }),
             qPrintable(report()));

    m_editor->setAcceptUrlsDrops(true);
    QVERIFY2(hoverOverList(), qPrintable(report()));
    m_pointer.release();

    QTRY_COMPARE_WITH_TIMEOUT(m_dropped->count(), 1, kTimeout);
    QCOMPARE(m_dropped->constFirst().constFirst().toStringList(),
             QStringList{QStringLiteral("/a")});
}

void tst_TextureFileDrag::slotMayDeleteThePanel()
{
    connect(m_editor, &TexturePropertyEditor::droppedUrls, this, [this] { delete m_panel; });

    QVERIFY2(startDrag({QUrl(QStringLiteral("file:///a"))}), qPrintable(report()));
    QVERIFY2(hoverOverList(), qPrintable(report()));
    m_pointer.release();

    QTRY_VERIFY_WITH_TIMEOUT(!m_panel, kTimeout);
    QCOMPARE(m_dropped->count(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_source->answer("finished"), QByteArray("copy"), kTimeout);
}

void tst_TextureFileDrag::slotMayDeleteTheWindow()
{
    // Qt 5 itself writes to the window after a drop, so there the deletion has to wait for its end.
    connect(m_editor, &TexturePropertyEditor::droppedUrls, this, [this] {
        if (QT_VERSION < QT_VERSION_CHECK(6, 0, 0))
            m_window->deleteLater();
        else
            delete m_window;
    });

    QVERIFY2(startDrag({QUrl(QStringLiteral("file:///a"))}), qPrintable(report()));
    QVERIFY2(hoverOverList(), qPrintable(report()));
    m_pointer.release();

    QTRY_VERIFY_WITH_TIMEOUT(!m_window, kTimeout);
    QCOMPARE(m_dropped->count(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_source->answer("finished"), QByteArray("copy"), kTimeout);
}

int main(int argc, char **argv)
{
    return runOnXServer<tst_TextureFileDrag>(argc, argv);
}

#include "tst_TextureFileDrag.moc"
