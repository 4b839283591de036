#pragma once

#include <QFile>
#include <QString>

#include <sys/inotify.h>
#include <unistd.h>

/// Notices when anybody opens a file, the process itself included.
class OpenWatch
{
public:
    explicit OpenWatch(const QString &path)
        : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        if (inotify_add_watch(m_descriptor, QFile::encodeName(path).constData(), IN_OPEN) < 0)
            qFatal("cannot watch a file");
    }

    ~OpenWatch() { close(m_descriptor); }

    OpenWatch(const OpenWatch &) = delete;
    OpenWatch &operator=(const OpenWatch &) = delete;

    /// Whether the file was opened since the last call.
    bool takeOpened()
    {
        char events[4096];
        bool opened = false;
        while (read(m_descriptor, events, sizeof events) > 0)
            opened = true;
        return opened;
    }

private:
    int m_descriptor;
};
