#pragma once

#include <QByteArray>
#include <QString>

namespace Tessark::PropertyPanel {

/**
 * Replaces the content of a file, whole or not at all, or makes the file.
 *
 * The content goes to a hidden file beside it first, ".NAME.saving-PID", which then takes the place
 * of the file. What is left of it when the process is killed is removed by the next call for that
 * file. The permissions of the file stay, and a link goes on to lead to it.
 *
 * Gives the reason when it is impossible; the file is as it was before then.
 */
QString replaceFile(const QString &path, const QByteArray &content);

} // namespace Tessark::PropertyPanel
