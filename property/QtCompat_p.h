#pragma once

#include <QFileDialog>

namespace Tessark::PropertyUI {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/// The file mode that picks a directory and lists nothing else. Qt 6 dropped the enumerator; the
/// kit's file-name field shows directories only for its successor too.
inline constexpr QFileDialog::FileMode kDirectoryOnlyMode = QFileDialog::DirectoryOnly;
QT_WARNING_POP

/// Whether Qt divides by zero where it places the handle of a slider whose range is wider than an
/// int can tell.
inline constexpr bool kWideSlidersNeedHelp = true;

#else

inline constexpr QFileDialog::FileMode kDirectoryOnlyMode = QFileDialog::Directory;
inline constexpr bool kWideSlidersNeedHelp = false;

#endif

} // namespace Tessark::PropertyUI
