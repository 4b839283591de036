#pragma once

#include <property/IPropertyEditorDelegate.h>
#include <property/Property.h>

#include <QMap>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>

namespace TestSupport {

/// A value store that notes every call. The hooks run inside the call, after it was noted, and may
/// do what a host may do.
class RecordingDelegate : public Tessark::PropertyUI::IPropertyEditorDelegate
{
public:
    struct Change
    {
        QString name; // of the property
        QVariant value;
        int flags;
    };

    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override
    {
        values[property->name] = value;
        changes.append({property->name, value, static_cast<int>(flags)});
        const auto hook = onSetValue; // a copy: the hook may be taken away while it runs
        if (hook)
            hook();
    }

    QVariant value(Tessark::PropertyUI::Property *property) override
    {
        reads.append(property->name);
        const QVariant result = values.value(property->name);
        const auto hook = onValue;
        if (hook)
            hook();
        return result;
    }

    QVector<int> flags() const
    {
        QVector<int> result;
        for (const Change &change : changes)
            result.append(change.flags);
        return result;
    }

    /// Each change as "name=value/flags".
    QStringList log() const
    {
        QStringList result;
        for (const Change &change : changes) {
            result.append(change.name + QLatin1Char('=') + change.value.toString()
                          + QLatin1Char('/') + QString::number(change.flags));
        }
        return result;
    }

    QMap<QString, QVariant> values;
    QVector<Change> changes;
    QStringList reads;
    std::function<void()> onSetValue;
    std::function<void()> onValue;
};

} // namespace TestSupport
