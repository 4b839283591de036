#pragma once

#include "host/PanelField_p.h"

#include <QPointer>
#include <QVariant>
#include <QVector>

#include <optional>

namespace Tessark::PropertyHost {

/// What a row held before the user tried something on one of its number fields. It is given back as
/// it was, not rounded to what the fields show. Panel, editor and fields may go at any time.
class HeldValue
{
public:
    /// Asks the panel, and so the host, for the value of the field's row; all must be alive.
    explicit HeldValue(const PanelField &field);

    /// What one of the row's fields showed; nothing for any other field.
    std::optional<double> number(const QAbstractSpinBox *field) const;

    /// Makes the row show it again, silently.
    void show() const;

    /// The same, and tells the host as the last change of the run that is under way.
    void giveBack() const;

private:
    struct Field
    {
        QPointer<QAbstractSpinBox> spinBox;
        double number = 0.0;
    };

    PanelField m_field;
    QVector<Field> m_fields; // of the row
    QVariant m_value;        // invalid if the host has none
};

} // namespace Tessark::PropertyHost
