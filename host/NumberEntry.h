#pragma once

#include "host/PropertyHostExport.h"

#include <QObject>

#include <memory>

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyHost {

class NumberNames;

/**
 * Lets users type arithmetic into the number fields of a panel, as NumberExpression describes it.
 *
 *     PropertyEditorPanel panel(list, &delegate, nullptr);
 *     NumberEntry entry(&panel);
 *
 * It works on every QSpinBox and QDoubleSpinBox of the panel's editors, from outside; typing plain
 * numbers stays as it is. Once the text is no plain number any more, a label below the field tells
 * what it gives, or what is wrong with it, and so does the field's accessible description. Return, or
 * leaving the field, makes the result the field's number: one edit in the run of the typing, brought
 * into the field's range and rounded as the field does. With a mistake, Return changes nothing, and
 * leaving gives back what the row held before the typing, as Escape does.
 *
 * Percentages and relative operations are of what the field held before the typing, although digits
 * typed at first are edits as ever. Names are those of the components of the field's own row ("x",
 * "width" or "w"), of rows of one number (name or label) and of their components ("size.width"); the
 * numbers are those that the fields show. A refresh by the host leaves a text that is being typed
 * alone.
 *
 * The panel may be deleted at any time, in callbacks too; but where a host itself moves the focus away
 * from an expression, or a mistake is left with the mouse, only by deleteLater(). Deleting this object
 * leaves the plain panel.
 */
class TESSARK_PROPERTYHOST_EXPORT NumberEntry : public QObject
{
    Q_OBJECT

public:
    /// panel is not taken over.
    explicit NumberEntry(PropertyUI::PropertyEditorPanel *panel, QObject *parent = nullptr);
    ~NumberEntry() override;

private:
    std::unique_ptr<NumberNames> m_names;
};

} // namespace Tessark::PropertyHost
