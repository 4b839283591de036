#pragma once

#include <QString>
#include <QStringList>

class QAbstractButton;
class QLabel;

namespace Tessark::PropertyUI {

// Texts as they are said: one line, without markup and without what only points to a field or a key.

/// The text that the label shows, without a colon at its end.
QString spokenText(const QLabel &label);

/// The text of the button without its mnemonic.
QString spokenText(const QAbstractButton &button);

/// A text that may be markup, as a label or a tool tip takes it.
QString spokenText(const QString &text);

/// A text whose ampersands mark a mnemonic, as on a tab.
QString withoutMnemonic(const QString &text);

/// The parts that are not empty and not what the part before them is, with commas between.
QString joinedParts(const QStringList &parts);

} // namespace Tessark::PropertyUI
