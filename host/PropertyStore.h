#pragma once

#include "host/Problem.h"
#include "host/PropertyMetaType.h"

#include <property/IPropertyEditorDelegate.h>

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>

class QSettings;

namespace Tessark::PropertyHost {

struct ConversionError;

class ProblemCollector;
class PropertyList;

/**
 * A delegate that keeps the values of a property list by property name, and reads and writes them
 * as a JSON object of name to value.
 *
 * Structural rows ("begin_group", "tab", ...) and actions carry no value in it: they are neither
 * read nor written.
 */
class TESSARK_PROPERTYHOST_EXPORT PropertyStore : public QObject,
                                                  public PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    explicit PropertyStore(QObject *parent = nullptr);
    ~PropertyStore() override;

    /// Keeps the value, if the property has a name and the value is valid, and emits
    /// valueChanged() in every case. The value of an "image" property may be a pixmap that shows
    /// the picture before or the default: then that one is kept; an invalid value means no picture.
    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;

    /// The value kept for the name of property, or an invalid variant.
    QVariant value(PropertyUI::Property *property) override;

    /// Sets all values to the defaults of the list and forgets everything else. A property without
    /// default gets its type's own (0, false, an empty text, black, the first choice, the identity,
    /// 1 x 1 for sizes, PNG, no picture), brought into its range; an "int/enum" with nothing to choose
    /// from gets no value. Silent.
    void reset(const PropertyList &list);

    /// Takes values from a JSON object of name to value; names that it lacks keep their values.
    /// Relative paths start at the list's folder. Values of names that the list does not have are
    /// kept for toJson() as they are. A value that
    /// does not convert is an error with the pointer "/name" and changes nothing. Silent.
    QVector<Problem> readValues(const QByteArray &json, const PropertyList &list);

    /// The values of the list's properties, and those that readValues() kept for unknown names.
    /// A property whose value has no JSON form is absent. With Qt 5, whose JSON knows doubles only,
    /// a kept whole number beyond 2 to the power of 53 is rounded.
    QJsonObject toJson(const PropertyList &list) const;

    /// Takes values from settings, whose groups and other keys stay as they are. The key is the
    /// property's hint kPropertyHintPreferencesKey, or its name; a key that is absent changes
    /// nothing. Values are read as writeSettings() writes them, and as people write them into an
    /// INI file. A value that does not convert is an error with the pointer "/name" and changes
    /// nothing. Relative paths start at the list's folder. Silent.
    QVector<Problem> readSettings(const QSettings &settings, const PropertyList &list);

    /// Writes the values of the list's properties under the same keys: texts, numbers and truth
    /// values as they are, others as the text of their JSON form. A property whose value has no JSON
    /// form is not written.
    void writeSettings(QSettings &settings, const PropertyList &list) const;

Q_SIGNALS:
    /// A panel, or another caller of setValue(), set a value. continued says that it goes on with
    /// the change before it. The value is invalid when an action was triggered.
    void valueChanged(Tessark::PropertyUI::Property *property, const QVariant &value,
                      bool continued);

private:
    bool take(const PropertyUI::Property &property, const std::optional<QVariant> &value,
              const ConversionError &error, ProblemCollector &problems);

    QHash<QString, QVariant> m_values;
    QJsonObject m_unknownValues; // of names that the list did not have
};

} // namespace Tessark::PropertyHost
