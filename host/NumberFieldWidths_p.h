#pragma once

#include <property/PropertyEditor.h>

#include <QAbstractSpinBox>
#include <QObject>
#include <QPointer>

#include <vector>

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyHost {

/**
 * Keeps the fields of a panel that have a fixed size from cutting off their numbers: they become wide
 * enough for the longest one of their range, and as high as the font asks for. Those that are the only ones
 * of their rows are equally wide on a page, so that what is beside them ends at one line. None becomes narrower
 * than the panel made it. Fields of whole numbers, which have no fixed size, join in that. Fields that are
 * whole rows stay as they are: their size may be the host's.
 *
 * Nothing moves under the hands of a user who drags a control of the panel or is typing a number: what
 * changes meanwhile is seen to when that is done.
 */
class NumberFieldWidths : public QObject
{
    Q_OBJECT

public:
    /// Widens the fields that the panel has now.
    explicit NumberFieldWidths(PropertyUI::PropertyEditorPanel *panel);

    /// To be called when ranges or suffixes may have changed: looks at all fields, once for all
    /// calls, when control is back in the event loop.
    void updateLater();

    /// The same when bounds have moved that may move back again: no field becomes narrower.
    void growLater();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchRuns(const PropertyUI::PropertyEditorPanel &panel);
    void schedule();
    void updateUnlessAtWork();
    bool isUserAtWork() const;
    void update();

    struct Field
    {
        QPointer<QAbstractSpinBox> box;
        const QWidget *page = nullptr; // of fields that share a width; it may be gone
        int smallest = 0;              // width
        int width = 0;                 // that its own numbers need
    };

    PropertyUI::PropertyEditorPanel *m_panel; // the parent
    std::vector<Field> m_fields;
    QPointer<PropertyUI::PropertyEditor> m_run; // the editor that the user is at
    bool m_isPending = false;                   // though perhaps not before the user has done
    bool m_isScheduled = false;
    bool m_mayShrink = true;
};

} // namespace Tessark::PropertyHost
