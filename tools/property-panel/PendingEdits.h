#pragma once

#include <QPointer>
#include <QVariant>
#include <QVector>

namespace Tessark::PropertyUI {
class Property;
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyPanel {

/**
 * Knows what was typed into a panel and not announced by its editor yet: a line that is still being
 * edited, or any text of a "text" property, whose editor never announces anything.
 *
 * Only editors that show something else than after the last refresh count. So a value that an
 * editor shows rounded or cut to a range is not replaced by what it shows.
 */
class PendingEdits
{
public:
    explicit PendingEdits(PropertyUI::PropertyEditorPanel *panel);

    /// Takes what the editors show now for the values of the panel's delegate; to be called after
    /// each refresh of the panel.
    void noteShownValues();

    /// The same for the rows of one property, whose range changed and may cut what they show.
    void noteShownValue(const PropertyUI::Property *property);

    bool isEmpty() const;

    /// Hands each pending edit to the panel, as a change on its own.
    void commit();

private:
    struct Shown
    {
        QPointer<PropertyUI::PropertyEditor> editor;
        QVariant value;
    };

    bool isPending(const Shown &shown) const;

    QPointer<PropertyUI::PropertyEditorPanel> m_panel;
    QVector<Shown> m_shown;
};

} // namespace Tessark::PropertyPanel
