#pragma once

class QByteArray;
class QString;

namespace Tessark::PropertyPanel {

/**
 * Makes writing to the standard streams safe; to be called first in main().
 *
 * Writing to a pipe without reader, or beyond the allowed size of a file, becomes an error instead
 * of the end of the process, and a stream that the caller closed refuses what is written to it,
 * rather than that the next file opened takes its place.
 */
void protectStandardStreams();

/// Writes all of data to standard output, unbuffered. Gives false and the reason when it cannot.
bool writeStandardOutput(const QByteArray &data, QString *error);

/// Writes a line to standard output; it does not matter whether anybody reads it.
void printLine(const QString &line);

/// Writes a line to standard error.
void printError(const QString &line);

} // namespace Tessark::PropertyPanel
