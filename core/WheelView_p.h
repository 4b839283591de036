#pragma once

#include "core/ColorLink_p.h"
#include "core/WheelPainting_p.h"

#include <QPointer>

namespace Tessark::UI {

/// What a wheel shows, and how.
struct WheelView
{
    explicit WheelView(ColorWheel *wheel);

    WheelGeometry geometry() const;

    /// Shows a colour silently. Repaints only where something moves by a visible amount.
    void show(const Hsv &newHsv);

    void paint(QPainter *painter);

    ColorWheel *wheel; // the owner of this object
    Hsv hsv;
    int displayMode = 0;     // a ColorWheel::DisplayMode
    bool isRelative = false; // the interaction mode
    bool wheelNeedsFocus = true;
    bool isUserChoice = false; // hsv is what the user chose last: an echo of it changes nothing
    QPointer<ColorLink> link;  // null: the wheel works alone
    WheelImages images;
    WheelTrace lastTrace{}; // of the last picture painted or asked for
};

} // namespace Tessark::UI
