#pragma once

#include "host/HeldValue_p.h"
#include "host/PanelField_p.h"
#include "host/ScrubScale_p.h"

#include <QObject>

namespace Tessark::PropertyHost {

/// One drag on a number field. What it moves may be deleted meanwhile, and this object in what the
/// host is told.
class ScrubRun : public QObject
{
    Q_OBJECT

public:
    /// Asks the host for the value; all of the field must be alive.
    explicit ScrubRun(const PanelField &field);
    ~ScrubRun() override; // ends it

    /// Also once what it moves is gone.
    bool isOver() const { return m_isOver || !m_field.isAlive(); }

    void begin();
    void moveBy(int pixels, Qt::KeyboardModifiers modifiers);
    void end();

    /// Ends it after giving back what the row held.
    void cancel();

    /// Escape, wherever the focus is, and what tells that the button is up.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    PanelField m_field;
    ScrubScale m_scale;
    double m_place;
    HeldValue m_held;
    bool m_wasEdited = false;
    bool m_isOver = false;
};

} // namespace Tessark::PropertyHost
