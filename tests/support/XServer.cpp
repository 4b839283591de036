#include "support/XServer.h"

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>

namespace {

constexpr int kStartTimeout = 30000; // milliseconds
constexpr int kStopTimeout = 10000;
constexpr quint8 kLeftButton = 1;

} // namespace

XPointer::~XPointer()
{
    if (m_connection)
        xcb_disconnect(m_connection);
}

bool XPointer::connectTo(const QString &display)
{
    int screen = 0;
    m_connection = xcb_connect(qPrintable(display), &screen);
    if (xcb_connection_has_error(m_connection))
        return false;
    const xcb_query_extension_reply_t *const extension =
        xcb_get_extension_data(m_connection, &xcb_test_id);
    if (!extension || !extension->present)
        return false;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    return true;
}

void XPointer::moveTo(const QPoint &position)
{
    send(XCB_MOTION_NOTIFY, 0, position);
}

void XPointer::press()
{
    send(XCB_BUTTON_PRESS, kLeftButton, QPoint());
    m_pressed = true;
}

void XPointer::release()
{
    if (m_pressed)
        send(XCB_BUTTON_RELEASE, kLeftButton, QPoint());
    m_pressed = false;
}

void XPointer::send(quint8 type, quint8 detail, const QPoint &position)
{
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<qint16>(position.x()), static_cast<qint16>(position.y()), 0);
    // An answer to any question tells that the server has dealt with what was sent before it.
    std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

XServer::~XServer()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(kStopTimeout)) {
        m_process.kill();
        m_process.waitForFinished(kStopTimeout);
    }
}

bool XServer::start()
{
    // Ends when its last client does. The number of the display comes on standard output.
    m_process.start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1000x800x24"),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                     QStringLiteral("-terminate")});
    if (!m_process.waitForStarted(kStartTimeout))
        return fail(QStringLiteral("it is not installed (Debian package xvfb)"));
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!m_process.waitForReadyRead(kStartTimeout))
            return fail(QStringLiteral("it names no display"));
        number += m_process.readAllStandardOutput();
    }
    const QString display = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    if (!m_pointer.connectTo(display))
        return fail(QStringLiteral("display %1 has no test extension").arg(display));

    qputenv("DISPLAY", display.toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Nothing here is drawn with OpenGL, whose libraries leak and take long to load.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    // Nor is anyone's session to be heard of this. Looking for a bus where there is none also leaks.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const char *variable : {"XAUTHORITY", "SESSION_MANAGER", "QT_SCALE_FACTOR",
                                 "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"})
        qunsetenv(variable);
    return true;
}

bool XServer::fail(const QString &reason)
{
    m_error = QStringLiteral("The X server Xvfb cannot be used: %1. %2")
                  .arg(reason, QString::fromLocal8Bit(m_process.readAllStandardError()));
    return false;
}
