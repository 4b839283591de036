#pragma once

#include "fuzz/User.h"

#include <property/IPropertyEditorDelegate.h>
#include <property/Property.h>

#include <QHash>
#include <QPointer>
#include <QVariant>

#include <memory>
#include <vector>

class QScrollArea;

namespace Tessark::PropertyUI {
class PropertyEditor;
}

namespace Fuzz {

class CheckedPanel;
class FuzzInput;

/**
 * A window with a panel of any properties, its user, and a host that answers anything and does anything
 * when it is called.
 *
 * The bytes that are left of an event decide what the host does while the event runs.
 */
class PanelSession : public Tessark::PropertyUI::IPropertyEditorDelegate
{
public:
    explicit PanelSession(FuzzInput &input);
    ~PanelSession() override;

    PanelSession(const PanelSession &) = delete;
    PanelSession &operator=(const PanelSession &) = delete;

    /// One event, of the user, the host or the desktop.
    void act(FuzzInput input);

    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(Tessark::PropertyUI::Property *property) override;

private:
    enum class Memory { Echoes, Forgets, Lies };

    void rebuild();
    void actAsHost(FuzzInput &input);
    void actInCallback();
    void refresh();
    void describe(FuzzInput &input);
    void showInEditor(FuzzInput &input);
    void showAgain(FuzzInput &input);
    void revert(FuzzInput &input);
    void furnishEditors(FuzzInput &input);
    void changePanel(FuzzInput &input);

    Tessark::PropertyUI::PropertyEditor *anyEditor(FuzzInput &input) const;

    std::vector<std::unique_ptr<Tessark::PropertyUI::Property>> m_owned;
    QVector<Tessark::PropertyUI::Property *> m_properties; // with null and repeated ones
    QHash<const Tessark::PropertyUI::Property *, QVariant> m_values;
    Memory m_memory = Memory::Echoes;
    std::unique_ptr<QScrollArea> m_window;
    QPointer<CheckedPanel> m_panel;
    std::unique_ptr<User> m_user;
    FuzzInput *m_script = nullptr; // of the running event
    bool m_building = false;
    bool m_updatingProperty = false; // as the library's flag, an inner call clears it
    int m_showing = 0;               // how many of the host's own calls show values
    int m_callbacks = 0;             // how deep callbacks are nested
};

} // namespace Fuzz
