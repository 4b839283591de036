#pragma once

#include <QFileDialog>

namespace Tessark::PropertyUI {

/// The file mode that picks a directory and lists nothing else. Qt 6 dropped the enumerator; the
/// kit's file-name field shows directories only for its successor too.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline constexpr QFileDialog::FileMode kDirectoryOnlyMode = QFileDialog::DirectoryOnly;
#else
inline constexpr QFileDialog::FileMode kDirectoryOnlyMode = QFileDialog::Directory;
#endif
QT_WARNING_POP

} // namespace Tessark::PropertyUI
