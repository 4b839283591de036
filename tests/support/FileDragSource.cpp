// A window of another program from which files can be dragged, as from a file manager's.
//
//   file-drag-source LIST
//
// Drags the URLs of the file LIST, one a line; a move is proposed, and copies and links are offered
// too. Tells on standard output what happens, one line each: "ready X Y", the point of the screen to
// start from; "dragging"; "action A", what the target under the pointer would do, each time that
// changes; "finished A". A is copy, move, link or none. Ends with its standard input.

#include <QApplication>
#include <QDrag>
#include <QFile>
#include <QMimeData>
#include <QMouseEvent>
#include <QSocketNotifier>
#include <QUrl>
#include <QWidget>

#include <cstdio>

#include <unistd.h>

namespace {

void tell(const QByteArray &line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

QByteArray nameOf(Qt::DropAction action)
{
    switch (action) {
    case Qt::CopyAction:
        return "copy";
    case Qt::MoveAction:
        return "move";
    case Qt::LinkAction:
        return "link";
    default:
        return "none";
    }
}

QList<QUrl> readUrls(const QString &fileName)
{
    QList<QUrl> urls;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return urls;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (!line.isEmpty())
            urls.append(QUrl::fromEncoded(line));
    }
    return urls;
}

class Window : public QWidget
{
public:
    explicit Window(const QList<QUrl> &urls)
        : m_urls(urls)
    {
        setGeometry(20, 20, 160, 160);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (m_isReady)
            return;
        m_isReady = true;
        const QPoint middle = mapToGlobal(rect().center());
        tell("ready " + QByteArray::number(middle.x()) + ' ' + QByteArray::number(middle.y()));
    }

    void mousePressEvent(QMouseEvent *event) override { m_start = event->pos(); }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        const int distance = (event->pos() - m_start).manhattanLength();
        if (event->buttons() != Qt::LeftButton || distance < QApplication::startDragDistance())
            return;
        auto *const drag = new QDrag(this);
        auto *const mime = new QMimeData;
        mime->setUrls(m_urls);
        drag->setMimeData(mime);
        connect(drag, &QDrag::actionChanged, this,
                [](Qt::DropAction action) { tell("action " + nameOf(action)); });
        tell("dragging");
        tell(
            "finished "
            + nameOf(drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction)));
    }

private:
    const QList<QUrl> m_urls;
    QPoint m_start;
    bool m_isReady = false;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 2)
        return 2;
    // Nothing is ever sent, so it can be read only once it is closed. A drag may be going on then,
    // in an event loop of its own, which must not hold the end up.
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [] { std::_Exit(0); });
    Window window(readUrls(QFile::decodeName(argv[1])));
    window.show();
    return application.exec();
}
