#pragma once

#include "host/PropertyHostExport.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <memory>

class QAbstractSpinBox;
class QLabel;
class QMouseEvent;

namespace Tessark::PropertyUI {
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

class ScrubRun;

/**
 * Lets users change "int", "float" and "percent" rows of a panel by dragging on the row's label.
 *
 *     PropertyEditorPanel panel(list, &delegate, nullptr);
 *     LabelScrubber scrubber(&panel);
 *
 * A drag begins once the pointer is QApplication::startDragDistance() pixels to the left or right of
 * the press; until then, and so for a click, label and host see what they always do. From there on,
 * every four pixels toward the end of the line add a step of the row's field (1, or one of the last
 * decimal, where its arrows add nothing), a tenth of one with Shift, ten with Ctrl; on a logarithmic
 * row a step is a hundredth of the slider's way. The number stays within the field's range and is
 * rounded as the field does.
 *
 * The drag is one interactive run, as one of the slider is. Escape ends it and gives back the value
 * that the row held before. A disabled or read-only field does not move. Where a drag is possible,
 * the label shows Qt::SizeHorCursor.
 *
 * The panel may be deleted at any time, in callbacks too; deleting this object leaves the plain panel
 * and ends a drag where it is.
 */
class TESSARK_PROPERTYHOST_EXPORT LabelScrubber : public QObject
{
    Q_OBJECT

public:
    /// panel is not taken over.
    explicit LabelScrubber(PropertyUI::PropertyEditorPanel *panel, QObject *parent = nullptr);
    ~LabelScrubber() override;

    /// True from the begin of a drag until it ends or is cancelled.
    bool isScrubbing() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Row
    {
        QPointer<QLabel> label;
        QPointer<PropertyUI::PropertyEditor> editor;
        QPointer<QAbstractSpinBox> field;
    };

    static bool canMove(const Row &row);
    void showCursor(QLabel *label);
    bool handleMouse(QLabel *label, QMouseEvent *event);
    void press(QLabel *label, const QMouseEvent &event);
    bool move(const QLabel &label, const QMouseEvent &event);
    bool release();
    void beginRun(const QLabel &label);

    QPointer<QObject> m_panel;
    QHash<const QObject *, Row> m_rows; // by label
    QPointer<QLabel> m_pressed;         // the label that the button went down on
    int m_pressedAt = 0;                // along the line, in pixels of the screen
    std::unique_ptr<ScrubRun> m_run;    // from the begin of the drag until the button is up
};

} // namespace Tessark::PropertyHost
