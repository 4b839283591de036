#pragma once

#include <QString>
#include <QStringList>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// What a button or tab shows of its text: without the marks of its key.
QString shownWithoutMnemonic(const QString &text);

/// What a user may know the row by: its label as it is shown, the name, the texts of its choices and
/// the help. None for what ends a group or tab group.
QStringList textsOfRow(const PropertyUI::Property &property);

} // namespace Tessark::PropertyHost
