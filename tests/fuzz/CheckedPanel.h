#pragma once

#include "fuzz/RunModel.h"

#include <property/PropertyEditorPanel.h>

#include <QHash>

namespace Fuzz {

/**
 * A panel that fails when what it tells its host breaks a promise.
 *
 * Only an editor's change reaches the host, with that editor's property and value, and as a further
 * change of a run only if it is one. Runs end after they began.
 */
class CheckedPanel : public Tessark::PropertyUI::PropertyEditorPanel
{
public:
    CheckedPanel(const QVector<Tessark::PropertyUI::Property *> &properties,
                 Tessark::PropertyUI::IPropertyEditorDelegate *delegate);

    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  Tessark::PropertyUI::IPropertyEditorDelegate::ChangeFlags flags) override;

    /// The editors that are there, without null entries.
    QVector<Tessark::PropertyUI::PropertyEditor *> editors() const;

private:
    void follow(Tessark::PropertyUI::PropertyEditor *editor);

    RunModel m_run;
    QHash<const Tessark::PropertyUI::PropertyEditor *, int> m_open; // runs begun and not ended
};

} // namespace Fuzz
