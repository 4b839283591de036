#include "host/InputFile.h"

#include <QFile>
#include <QFileInfo>

namespace Tessark::PropertyHost {

namespace {

Problem fileProblem(const QString &message)
{
    Problem problem;
    problem.message = message;
    return problem;
}

} // namespace

std::optional<QByteArray> readInputFile(const QString &path, QVector<Problem> &problems)
{
    if (QFileInfo(path).isDir()) {
        problems.append(fileProblem(QStringLiteral("cannot be read: it is a directory")));
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.append(
            fileProblem(QStringLiteral("cannot be opened: %1").arg(file.errorString())));
        return std::nullopt;
    }
    // The size of a pipe is not known before its end, so one byte more than allowed decides.
    const QByteArray content = file.read(kMaximumInputSize + 1);
    if (file.error() != QFileDevice::NoError) {
        problems.append(fileProblem(QStringLiteral("cannot be read: %1").arg(file.errorString())));
        return std::nullopt;
    }
    if (content.size() > kMaximumInputSize) {
        problems.append(
            fileProblem(QStringLiteral("is too large: at most %1 MiB (%2 bytes) are read")
                            .arg(kMaximumInputSize / 1024 / 1024)
                            .arg(kMaximumInputSize)));
        return std::nullopt;
    }
    return content;
}

} // namespace Tessark::PropertyHost
