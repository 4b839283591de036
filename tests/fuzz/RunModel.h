#pragma once

#include <property/PropertyEditor.h>

#include <QPointer>

namespace Fuzz {

/// What a panel is to know of the interactive run, told by the editors' own signals.
class RunModel
{
public:
    void start(Tessark::PropertyUI::PropertyEditor *editor)
    {
        m_editor = editor;
        m_seen = false;
    }

    void end() { start(nullptr); }

    /// After the host was told.
    void changed(const Tessark::PropertyUI::PropertyEditor *editor)
    {
        m_seen = m_editor == editor;
        if (!m_seen)
            m_editor = nullptr;
    }

    /// Whether a change of the editor goes on with its run.
    bool continues(const Tessark::PropertyUI::PropertyEditor *editor) const
    {
        return m_seen && m_editor == editor;
    }

private:
    QPointer<Tessark::PropertyUI::PropertyEditor> m_editor;
    bool m_seen = false;
};

} // namespace Fuzz
