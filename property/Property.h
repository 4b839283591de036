#pragma once

#include "property/PropertyVocabulary.h"

#include <QMap>
#include <QString>
#include <QVariant>

namespace Tessark::PropertyUI {

/**
 * A host's description of one editable item: its name, what the user sees, which editor it gets,
 * its range, its default and any number of hints.
 *
 * The host owns every Property and keeps it alive as long as any panel made from it; panels and
 * editors hold plain pointers and only read it. A Property carries no current value: values stay
 * with the host and travel through IPropertyEditorDelegate. Hints and range may be changed after a
 * panel was built; PropertyEditorPanel::updateProperty() makes the editors look again.
 */
class TESSARK_PROPERTY_EXPORT Property
{
public:
    /// An item without range and default: the four variants are invalid, there are no hints.
    Property(const QString &itemName, const QString &itemLabel, QString itemType);

    /// An item with a range and, last, a default value. The hard maximum starts equal to max.
    Property(const QString &itemName, const QString &itemLabel, QString itemType,
             const QVariant &min, const QVariant &max, const QVariant &value);

    /// Sets the range; the hard maximum becomes max, whatever it was before.
    Property &setRange(const QVariant &min, const QVariant &max);

    /// Sets the range and, apart from it, the upper bound that typed-in values may reach.
    Property &setRange(const QVariant &min, const QVariant &max, const QVariant &hardMax);

    /// Sets the value that "Set to Default" restores; an invalid or null one takes the offer away.
    Property &setDefaultValue(const QVariant &value);

    /// Sets the hard maximum alone. Call it after the two-argument setRange(), which overwrites it.
    Property &setHardMaxValue(const QVariant &value);

    /// Inserts the hint, or replaces the value it had.
    Property &setHint(const QString &key, QVariant value);

    /// The hint's value, or an invalid variant when there is none. Never adds the key.
    QVariant hint(const QString &key) const;

    QString name;                  // identifies the item for the host
    QString label;                 // row label, tab title or text of a group's check box
    QString type;                  // one of kPropertyType..., or a type the host registered
    QVariant minValue;             // lower bound of the range
    QVariant maxValue;             // upper bound that the controls normally show
    QVariant hardMaxValue;         // upper bound that typed-in values may reach
    QVariant defaultValue;         // restored by "Set to Default"
    QMap<QString, QVariant> hints; // one of kPropertyHint..., or a key of the host, to its value
};

} // namespace Tessark::PropertyUI
