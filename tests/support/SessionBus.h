#pragma once

#include "support/XServer.h"

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QtGlobal>

#include <cstdio>

/// A message bus of its own, with the accessibility bus. Both end with the object.
class SessionBus
{
public:
    ~SessionBus()
    {
        m_process.terminate();
        m_process.waitForFinished(kBusTimeout);
    }

    /// Starts it and makes it the bus of this program and of those that it starts. An X server must be
    /// there. False on failure, which error() explains.
    bool start() { return startDaemon() && startAccessibility(); }

    QString address() const { return QString::fromLatin1(m_address.trimmed()); }
    QString error() const { return m_error; }

private:
    static constexpr int kBusTimeout = 30000; // milliseconds

    bool startDaemon()
    {
        m_process.start(QStringLiteral("dbus-daemon"),
                        {QStringLiteral("--session"), QStringLiteral("--nofork"),
                         QStringLiteral("--print-address=1")});
        while (!m_address.endsWith('\n')) {
            if (!m_process.waitForReadyRead(kBusTimeout))
                return fail("No message bus (Debian package dbus-daemon)", m_process);
            m_address += m_process.readAllStandardOutput();
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.trimmed());
        return true;
    }

    /// Qt looks for that bus only where it runs already.
    bool startAccessibility()
    {
        QProcess question;
        question.start(QStringLiteral("dbus-send"),
                       {QStringLiteral("--session"), QStringLiteral("--print-reply"),
                        QStringLiteral("--dest=org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                        QStringLiteral("org.a11y.Bus.GetAddress")});
        const bool isAnswered = question.waitForFinished(kBusTimeout)
                                && question.exitStatus() == QProcess::NormalExit
                                && question.exitCode() == 0;
        return isAnswered || fail("No accessibility bus (Debian package at-spi2-core)", question);
    }

    bool fail(const char *reason, QProcess &process)
    {
        m_error = QStringLiteral("%1: %2 %3")
                      .arg(QString::fromLatin1(reason), process.errorString(),
                           QString::fromLocal8Bit(process.readAllStandardError()));
        return false;
    }

    QProcess m_process;
    QByteArray m_address;
    QString m_error;
};

/// Instead of QTest's main(): runs a test with an X server and buses of its own, whose application and
/// object the function makes. Fails where one of them cannot be started.
template <typename Run>
int runOnSessionBus(Run run)
{
    XServer server;
    SessionBus session;
    if (server.start() && session.start())
        return run(session);
    std::fprintf(stderr, "FAIL!  : %s\n", qPrintable(server.error() + session.error()));
    return 1;
}
