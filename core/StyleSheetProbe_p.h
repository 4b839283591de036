#pragma once

#include <QColor>

class QStyleOptionButton;
class QWidget;

namespace Tessark::UI {

/// What the style sheets in force make of a button in the state of the option.
struct StyleSheetLook
{
    bool drawsBackground = false; // a background or a border
    QColor color;                 // of the text
};

/// Asks the widget's style by letting it paint into nothing. The palette alone does not tell, since
/// it knows no colour of a rule with a state (":checked { color: red }").
StyleSheetLook styleSheetLook(const QWidget *widget, const QStyleOptionButton &option);

/// Makes the style sheets in force, if any, look at the widget's dynamic properties again; they do
/// so only when they polish.
void repolish(QWidget *widget);

} // namespace Tessark::UI
