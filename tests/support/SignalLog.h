#pragma once

#include "property/PropertyEditor.h"

#include <QCoreApplication>
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

    /// That many value changes and nothing else, as take() tells them.
    static QStringList values(int count)
    {
        QStringList entries;
        for (int i = 0; i < count; ++i)
            entries.append(QStringLiteral("value"));
        return entries;
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

/// Runs action whenever the editor emits the signal that a SignalLog calls by that name; the
/// connection lasts as long as the editor.
template <typename Action>
void onSignal(const Tessark::PropertyUI::PropertyEditor *editor, const QString &name, Action action)
{
    using Tessark::PropertyUI::PropertyEditor;
    auto signal = &PropertyEditor::valueChanged;
    if (name == QLatin1String("start"))
        signal = &PropertyEditor::startInteractiveChange;
    else if (name == QLatin1String("end"))
        signal = &PropertyEditor::endInteractiveChange;
    QObject::connect(editor, signal, QCoreApplication::instance(), action);
}
