#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QPoint>
#include <QProcess>
#include <QString>
#include <QTest>

#include <cstdio>

struct xcb_connection_t;

/// The mouse of an X server. What it does reaches programs as from a real one, in the order of the
/// calls; it has arrived at the server when a call returns, but not yet in any program.
class XPointer
{
public:
    XPointer() = default;
    ~XPointer();

    XPointer(const XPointer &) = delete;
    XPointer &operator=(const XPointer &) = delete;

    /// Takes the mouse of that display; false when the server or its test extension is missing.
    bool connectTo(const QString &display);

    /// To a point of the screen in device pixels.
    void moveTo(const QPoint &position);

    /// To and fro at that place, as a hand moves, until the condition holds: drags are judged, and
    /// told to the other program, only as the pointer moves. False after twenty seconds.
    template <typename Condition>
    bool moveUntil(const QPoint &position, Condition condition);

    /// The left button. Releasing one that is up does nothing.
    void press();
    void release();

private:
    void send(quint8 type, quint8 detail, const QPoint &position);

    xcb_connection_t *m_connection = nullptr;
    quint32 m_root = 0;
    bool m_pressed = false;
};

template <typename Condition>
bool XPointer::moveUntil(const QPoint &position, Condition condition)
{
    const QDeadlineTimer deadline(20000);
    for (int step = 0; !deadline.hasExpired(); ++step) {
        moveTo(position + QPoint(step % 2, 0));
        if (QTest::qWaitFor(condition, 50))
            return true;
    }
    return false;
}

/// An X server without screen or window manager, for one test program alone: each run has its own,
/// on the first free display. It ends with the object, and by itself when the program crashes.
class XServer
{
public:
    XServer() = default;
    ~XServer();

    XServer(const XServer &) = delete;
    XServer &operator=(const XServer &) = delete;

    /// Starts it and makes it the platform of this program's QApplication, which must not exist yet,
    /// and of the programs that it starts. False on failure, which error() explains.
    bool start();
    QString error() const { return m_error; }

    XPointer &pointer() { return m_pointer; }

private:
    bool fail(const QString &reason);

    QProcess m_process;
    XPointer m_pointer;
    QString m_error;
};

/// Instead of QTest's main(): a test class that is given the mouse of an X server of its own.
template <typename Test>
int runOnXServer(int argc, char **argv)
{
    XServer server;
    if (!server.start()) {
        std::fprintf(stderr, "FAIL!  : %s\n", qPrintable(server.error()));
        return 1;
    }
    QApplication application(argc, argv);
    Test test(server.pointer());
    return QTest::qExec(&test, argc, argv);
}
