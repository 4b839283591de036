#pragma once

#include "core/CoreExport.h"

#include <QObject>

#include <memory>

namespace Tessark::UI {

class ColorWheel;
class Slider;

/**
 * Hears from a ColorControl what the user does with its widgets. Either call may do anything: set the
 * control again, or delete the control, its widgets or the client.
 */
class TESSARK_CORE_EXPORT IColorControlClient
{
public:
    virtual ~IColorControlClient();

    /// The user chose another colour; fractions 0..1.
    virtual void colorChanged(float red, float green, float blue, float alpha) = 0;

    /// The edit that just ended is complete: once after each drag that changed the colour, and after
    /// each change outside a drag.
    virtual void colorCheckPoint() = 0;
};

/**
 * One colour, and any number of widgets that show and edit it in step.
 *
 * The widgets belong to whoever places them, and control and widgets may die in any order: a widget
 * without its control works on alone. Fractions are 0..1. Hue, saturation and value are kept beside
 * red, green and blue where these leave them undefined: the hue of a grey, hue and saturation of
 * black. A fresh control is opaque black.
 *
 * A user edit updates the state, then the other widgets silently, emits changed(), and calls the
 * client if a fraction changed. So does setValue() or setRealValue() of a slider made here.
 * Setters of the control and the wheel never call the client. blockSignals() silences the signals
 * and the client; state and widgets follow.
 *
 * The order of a drag: the widget's start signal, interactionStarted(), edits,
 * IColorControlClient::colorCheckPoint() unless nothing changed or Escape took it back,
 * interactionFinished(), the widget's end signal.
 */
class TESSARK_CORE_EXPORT ColorControl : public QObject
{
    Q_OBJECT

public:
    /// The client may be null; it must outlive the control or be taken away by setClient(nullptr).
    explicit ColorControl(IColorControlClient *client, QObject *parent = nullptr);
    ~ColorControl() override;

    // Each call makes another widget, without parent, which the caller owns.
    ColorWheel *createColorWheel();
    Slider *createRedSlider(Qt::Orientation orientation);
    Slider *createGreenSlider(Qt::Orientation orientation);
    Slider *createBlueSlider(Qt::Orientation orientation);
    Slider *createAlphaSlider(Qt::Orientation orientation);

    float red() const;
    float green() const;
    float blue() const;
    float alpha() const;

    /// Hue is in [0, 1), red at 0.
    double hue() const;
    double saturation() const;
    double value() const;

    /// Whether the user drags one of the widgets now.
    bool isInteracting() const;

    IColorControlClient *client() const;
    void setClient(IColorControlClient *client);

public Q_SLOTS:
    /// Shows a colour, without calling the client; other numbers clamp, NaN counts as 0.
    ///
    /// A colour that differs from the one last chosen by the user by no more than rounding or
    /// truncation to 8 bits is taken as that colour coming back from the host: the numbers are taken
    /// over, while hue, saturation, value and the widgets stay where the user put them. Any other
    /// colour is taken entirely, and so is every one after it until the user's next edit.
    void setColorRGBA(float red, float green, float blue, float alpha);

Q_SIGNALS:
    /// A fraction, the hue, the saturation or the value changed, by the user or a setter.
    void changed();

    void interactionStarted();
    void interactionFinished();

private:
    class Link;

    std::unique_ptr<Link> m_link;
};

} // namespace Tessark::UI
