#pragma once

#include "Subject.h"

#include <property/PropertyUI.h>

#include <QHash>
#include <QVariant>

#include <vector>

/// The rows as a panel whose delegate stores the values.
class PanelSubject final : public Subject, private Tessark::PropertyUI::IPropertyEditorDelegate
{
public:
    explicit PanelSubject(int rows);
    ~PanelSubject() override;

    void refresh(int round) override;
    void setExpanded(bool expanded) override;
    QAbstractSlider *slider() override;
    bool updateRow(int row) override;

    /// How often the panel asked for a value or handed one over.
    int delegateCalls() const { return m_delegateCalls; }

private:
    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(Tessark::PropertyUI::Property *property) override;

    std::vector<Tessark::PropertyUI::Property> m_properties; // one for each row
    std::vector<Tessark::PropertyUI::Property> m_markers;    // begin and end of the group
    QHash<Tessark::PropertyUI::Property *, QVariant> m_values;
    Tessark::PropertyUI::PropertyEditorPanel *m_panel = nullptr; // owned by the window
    Tessark::PropertyUI::PropertyEditor *m_draggedEditor = nullptr;
    int m_delegateCalls = 0;
};
