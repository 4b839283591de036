#pragma once

class QWidget;

namespace Fuzz {

class FuzzInput;

/// Changes what the desktop decides: size and activity of the window, style, language, palette, font
/// and direction of reading.
void changeDesktop(QWidget &window, FuzzInput &input);

/// Everything as it was at first.
void resetDesktop();

} // namespace Fuzz
