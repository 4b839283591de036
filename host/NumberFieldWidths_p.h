#pragma once

#include <QDoubleSpinBox>
#include <QObject>
#include <QPointer>

#include <vector>

namespace Tessark::PropertyHost {

/**
 * Keeps the fields of a panel that have a fixed size from cutting off their numbers: they become wide
 * enough for the longest one of their range, and as high as the font asks for. Those that are the only ones
 * of their rows are equally wide on a page, so that what is beside them ends at one line. None becomes narrower
 * than it was. Fields that are whole rows stay as they are: their size may be the host's.
 */
class NumberFieldWidths : public QObject
{
    Q_OBJECT

public:
    /// Widens the fields that the panel has now.
    explicit NumberFieldWidths(QWidget *panel);

    /// To be called when ranges or suffixes may have changed: looks at all fields, once for all
    /// calls, when control is back in the event loop.
    void updateLater();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();

    struct Field
    {
        QPointer<QDoubleSpinBox> box;
        const QWidget *page = nullptr; // of fields that share a width; it may be gone
        int smallest = 0;              // width
        int width = 0;                 // that its own numbers need
    };

    std::vector<Field> m_fields;
    bool m_isPending = false;
};

} // namespace Tessark::PropertyHost
