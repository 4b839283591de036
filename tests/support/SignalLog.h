#pragma once

#include "property/PropertyEditor.h"

#include <QStringList>

/// Records the signals of one editor in the order they come: "start", "value" and "end".
class SignalLog : public QObject
{
public:
    explicit SignalLog(const Tessark::PropertyUI::PropertyEditor *editor)
    {
        using Tessark::PropertyUI::PropertyEditor;
        record(editor, &PropertyEditor::startInteractiveChange, QStringLiteral("start"));
        record(editor, &PropertyEditor::valueChanged, QStringLiteral("value"));
        record(editor, &PropertyEditor::endInteractiveChange, QStringLiteral("end"));
    }

    /// What came since the last call.
    QStringList take()
    {
        QStringList taken;
        taken.swap(m_entries);
        return taken;
    }

private:
    template <typename Signal>
    void record(const Tessark::PropertyUI::PropertyEditor *editor, Signal signal,
                const QString &entry)
    {
        connect(editor, signal, this, [this, entry] { m_entries.append(entry); });
    }

    QStringList m_entries;
};
