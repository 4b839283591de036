#pragma once

#include "support/PropertySet.h"
#include "support/Random.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>

#include <QHash>
#include <QVariant>
#include <QVector>

#include <functional>

namespace Soak {

using TestSupport::below;
using TestSupport::happens;
using TestSupport::Random;

/// What an editor shows after it was given a value of the host. The last argument is what it showed
/// before: what some editors keep for values that they cannot show.
using ShownRule = std::function<QVariant(const QVariant &given, const QVariant &before)>;

/// One property of the soak.
struct Row
{
    Tessark::PropertyUI::Property *property = nullptr;
    QVariant initial;
    QVector<QVariant>
        others; // which the host sets between; may lie beyond what the editor can show
    ShownRule shown;
};

/// Properties of all types in groups and tabs, and what the host knows of them.
class Rows
{
public:
    Rows();

    QVector<Tessark::PropertyUI::Property *> list() const { return m_properties.list(); }
    const QVector<Row> &all() const { return m_rows; }
    const Row &of(const Tessark::PropertyUI::Property *property) const;

private:
    Row &add(const QString &type, const QVariant &initial, ShownRule shown,
             const QVector<QVariant> &others = {});
    Row &addMark(const QString &type, const QVariant &initial = {});
    void addNumbers();
    void addTexts();
    void addChoices();
    void addVectors();
    void addSizes();
    void addPictures();
    void addTransforms();
    void addGroups();

    TestSupport::PropertySet m_properties;
    QVector<Row> m_rows;
    QHash<const Tessark::PropertyUI::Property *, int> m_indexes;
};

/// Whether two values are the same. Unlike QVariant's operator it knows all types of the soak, and
/// no number counts as nearly another.
bool isSame(const QVariant &left, const QVariant &right);

/// The names that the "texture" row offers.
QStringList textureNames();

/// The value in words.
QString inWords(const QVariant &value);

} // namespace Soak
