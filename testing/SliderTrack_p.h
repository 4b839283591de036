#pragma once

#include <QPoint>

class QSlider;

namespace Tessark::PropertyTest {

/// The way of a slider's handle, in pixels of the slider.
class SliderTrack
{
public:
    explicit SliderTrack(const QSlider &slider);

    /// Whether there is a handle and a way for it.
    bool isUsable() const { return m_length > 0 && m_maximum > m_minimum; }

    /// The middle of the handle where it is now.
    QPoint handle() const { return m_handle; }

    /// How far the handle is from where it is now, in pixels, where it shows position as nearly as it
    /// can.
    int pixelsTo(int position) const;

    /// The position that the slider takes when the handle is moved so far.
    int positionAfter(int pixels) const;

    /// The handle's middle after a move by so many pixels.
    QPoint handleAfter(int pixels) const;

private:
    double positionsPerPixel() const;

    Qt::Orientation m_orientation;
    bool m_isUpsideDown;
    int m_minimum;
    int m_maximum;
    int m_length;    // of the way, in pixels
    int m_current;   // where the handle is on it
    int m_position;  // of the slider
    bool m_isSmooth; // it follows the pointer from where it is, not from the pixel of its handle
    QPoint m_handle;
};

} // namespace Tessark::PropertyTest
