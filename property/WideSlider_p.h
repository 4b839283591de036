#pragma once

class QSlider;

namespace Tessark::PropertyUI {

/// Lets the slider paint and take clicks although its range may be wider than an int can tell,
/// where the Qt in use cannot do that by itself. Call it after the range was set.
void supportWideRange(QSlider *slider);

} // namespace Tessark::PropertyUI
