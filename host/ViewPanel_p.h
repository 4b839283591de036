#pragma once

#include "host/DelegatePointer.h"
#include "host/GroupFolding_p.h"
#include "host/RowVisibility_p.h"

#include <property/IPropertyEditorDelegate.h>
#include <property/PropertyEditorPanel.h>

#include <QVariant>

#include <memory>

namespace Tessark::PropertyHost {

/// The panel of a view. It folds its groups by itself and knows why a row is hidden.
class ViewPanel final : public PropertyUI::PropertyEditorPanel
{
    Q_OBJECT

public:
    ViewPanel(const QVector<PropertyUI::Property *> &properties,
              PropertyUI::IPropertyEditorDelegate *delegate,
              PropertyUI::PropertyEditorContext *context);
    ~ViewPanel() override;

    /// The rows may be kept longer than the panel.
    std::shared_ptr<const PanelRows> rows() const { return m_rows; }
    RowVisibility &visibility() { return *m_visibility; }
    GroupFolding &folding() { return m_folding; }

    /// The delegate of the host, which the panel's own may stand in front of; null at first.
    PropertyUI::IPropertyEditorDelegate *source() const { return m_source.get(); }
    void setSource(PropertyUI::IPropertyEditorDelegate *source);

    /// Has the editor announce an edit, of which the host is told the value, and not what the fields
    /// make of it. An invalid one is what the fields make of it. Host code runs here.
    void announce(PropertyUI::PropertyEditor &editor, const QVariant &value);

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  PropertyUI::IPropertyEditorDelegate::ChangeFlags flags) override;
    QVariant value(PropertyUI::Property *property) const override;

Q_SIGNALS:
    /// The host was asked for the value, to show it or for another reason.
    void valueRead(PropertyUI::Property *property, const QVariant &value) const;

    /// The host was told of an edit.
    void valueEdited(PropertyUI::Property *property);

    /// A row has been shown another range than its property had, see tellRange().
    void rangeShown();

    /// The user asks for a menu that the control does not have. Who opens one accepts the request; else
    /// it is the panel's.
    void menuRequested(QContextMenuEvent *request);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void showGroup(PropertyUI::PropertyEditor *group, bool open) override;

private:
    std::shared_ptr<const PanelRows> m_rows;
    std::unique_ptr<RowVisibility> m_visibility;
    GroupFolding m_folding;
    DelegatePointer m_source;
    QVariant m_announced; // instead of what the fields say
};

/// Tells a panel that is in a view that the fields of a row have another range.
void tellRange(PropertyUI::PropertyEditorPanel *panel);

/// What decides which rows of the panel are shown; null for a panel outside of a view.
RowVisibility *visibilityOf(PropertyUI::PropertyEditorPanel *panel);

} // namespace Tessark::PropertyHost
