#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class QMetaProperty;
struct QMetaObject;

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// A mistake in a Q_CLASSINFO.
struct ClassInfoMistake
{
    QString name;    // of the class information
    QString message; // without that name
    QString part;    // JSON pointer from the row to what the mistake is about
    bool isError = true;
};

/**
 * What the Q_CLASSINFO of a class and its bases say about rows: "<property>.<word>", where the word
 * is "label", "group", "type", "range", "default" or the key of a hint.
 *
 * Information of other forms belongs to others. Where a class and its base say the same, the class
 * decides.
 */
class ClassInfo
{
public:
    explicit ClassInfo(const QMetaObject &meta);

    QString className() const { return m_className; }

    /// A null text if nothing is said.
    QString label(const QString &property) const;
    QString group(const QString &property) const;

    /// Applies everything else to the row of a property, which has its type and the range of that.
    /// What cannot be used is left out and told.
    QVector<ClassInfoMistake> apply(const QMetaProperty &meta, PropertyUI::Property &row) const;

    /// Information about properties that there are not.
    QVector<ClassInfoMistake> strangers() const { return m_strangers; }

private:
    void add(const QMetaObject &meta, const QString &name, const QString &text);

    QString m_className;
    QMap<QString, QMap<QString, QString>> m_texts; // by property and word
    QVector<ClassInfoMistake> m_strangers;
};

} // namespace Tessark::PropertyHost
