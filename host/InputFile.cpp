#include "host/InputFile.h"

#include "host/Messages_p.h"

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
        problems.append(fileProblem(Messages::tr("cannot be read: it is a directory")));
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.append(fileProblem(Messages::tr("cannot be opened: %1").arg(file.errorString())));
        return std::nullopt;
    }
    // The size of a pipe is not known before its end, so one byte more than allowed decides.
    const QByteArray content = file.read(kMaximumInputSize + 1);
    if (file.error() != QFileDevice::NoError) {
        problems.append(fileProblem(Messages::tr("cannot be read: %1").arg(file.errorString())));
        return std::nullopt;
    }
    if (content.size() > kMaximumInputSize) {
        problems.append(fileProblem(Messages::tr("is too large: at most %1 MiB (%n bytes) are read",
                                                 nullptr, static_cast<int>(kMaximumInputSize))
                                        .arg(kMaximumInputSize / 1024 / 1024)));
        return std::nullopt;
    }
    return content;
}

} // namespace Tessark::PropertyHost
