#pragma once

class QVariant;
class QWidget;

namespace Tessark::PropertyUI {

/// Tells assistive technology, if it listens, the number that the control holds now. For a spin box,
/// which tells only steps by itself.
void tellNumber(QWidget *control, const QVariant &number);

} // namespace Tessark::PropertyUI
