#pragma once

#include <QString>
#include <QStringList>

namespace Tessark::PropertyHost {

/// How the value of a property type looks in JSON and in a variant.
enum class ValueKind {
    None, // the type has no value
    Any,  // a type of the host: whatever JSON holds
    Boolean,
    Integer,
    Number,
    Text,
    Choice,
    Vector2,
    Vector3,
    Vector4,
    Color,
    OpaqueColor,
    Point,
    PointF,
    Size,
    SizeF,
    Rect,
    RectF,
    Matrix,
    Picture,
    ImageFormat,
    Texture,
};

/// Whether "min", "max" and "hardMax" mean something for a property type.
enum class RangeUse {
    None,
    Optional,   // an editor of the host may read them
    NeedsRange, // the editor reads them, and takes an absent one as 0
};

/// What the reader knows about a property type.
struct TypeTraits
{
    ValueKind kind = ValueKind::Any;
    RangeUse range = RangeUse::Optional;
    bool structural = false; // a group, tab or separator row, or an action: it needs no name
};

/// The traits of a type string; those of a host's own type for one that is not in the vocabulary.
TypeTraits typeTraits(const QString &type);

/// All type strings of the vocabulary.
const QStringList &vocabularyTypes();

/// True for the types whose values a PropertyStore reads and writes.
bool carriesValue(const QString &type);

} // namespace Tessark::PropertyHost
