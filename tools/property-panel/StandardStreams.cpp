#include "StandardStreams.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Tessark::PropertyPanel {

namespace {

constexpr int kStandardOutput = 1;
constexpr int kStandardError = 2;

bool writeAll(int descriptor, const QByteArray &data, QString *error)
{
    QFile stream;
    if (stream.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered)
        && stream.write(data) == data.size())
        return true;
    *error = stream.errorString();
    return false;
}

} // namespace

void protectStandardStreams()
{
#if defined(Q_OS_UNIX)
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // open() takes the lowest free number, so this fills 0, 1 and 2. Opened for reading only, a
    // stream that was closed goes on refusing output.
    int descriptor = 0;
    do {
        descriptor = open("/dev/null", O_RDONLY);
    } while (descriptor >= 0 && descriptor <= kStandardError);
    if (descriptor > kStandardError)
        close(descriptor);
#endif
}

bool writeStandardOutput(const QByteArray &data, QString *error)
{
    return writeAll(kStandardOutput, data, error);
}

void printLine(const QString &line)
{
    QString ignored;
    writeAll(kStandardOutput, line.toLocal8Bit() + '\n', &ignored);
}

void printError(const QString &line)
{
    QString ignored;
    writeAll(kStandardError, line.toLocal8Bit() + '\n', &ignored);
}

} // namespace Tessark::PropertyPanel
