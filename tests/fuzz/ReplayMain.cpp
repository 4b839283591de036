#include "fuzz/FuzzTarget.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cstdio>

// Runs a fuzz target over the files, and the files in the folders, that the command line names: what a
// fuzzer once found stays a test where there is no fuzzer.

namespace {

QStringList filesAt(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList result;
    QDirIterator entries(path, QDir::Files);
    while (entries.hasNext())
        result.append(entries.next());
    result.sort();
    return result;
}

bool replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return false;
    }
    // Before it runs: an input that breaks something ends the program.
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    const QByteArray content = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(content.constData()),
                           std::size_t(content.size()));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        const QStringList files = filesAt(QString::fromLocal8Bit(argv[i]));
        for (const QString &file : files) {
            if (!replay(file))
                return 1;
            ++replayed;
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
