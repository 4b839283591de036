#include "host/HintUse_p.h"

#include "host/HintJson_p.h"
#include "host/HostHints.h"
#include "host/RuleSet_p.h"
#include "host/ValueKind_p.h"

#include <property/PropertyVocabulary.h>

#include <QMap>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// Hints with the types whose editors read them. The others are read for all rows, or by hosts.
QMap<QString, QStringList> makeReaders()
{
    const QStringList numbers{kPropertyTypeFloat};
    const QStringList vectors{kPropertyTypeVec2, kPropertyTypeVec3, kPropertyTypeVec4};
    const QStringList choices{kPropertyTypeEnumeration};
    const QStringList transforms{kPropertyTypeTransform2D};
    return {
        {kPropertyHintEnabled, {kPropertyTypeBoolean, kPropertyTypeString, kPropertyTypeInteger}},
        {kPropertyHintAlignment, {kPropertyTypeStaticText, kPropertyTypeImage}},
        {kPropertyHintBoolHideLabel, {kPropertyTypeBoolean}},
        {kPropertyHintUseNativeDialogs, {kPropertyTypeFilename}},
        {kPropertyHintTabPosition, {kPropertyTypeBeginTabGroup}},
        {kPropertyHintValues, choices},
        {kPropertyHintDisplayValues, choices},
        {kPropertyHintWidget, choices},
        {kPropertyHintSuffix, numbers},
        {kPropertyHintFloatDecimals, numbers},
        {kPropertyHintDisplayScale, numbers},
        {kPropertyHintLogarithmicSlider, numbers},
        {kPropertyHintShowSliders, vectors},
        {kPropertyHintShowMultipleCheck, vectors},
        {kPropertyHintAspectRatio, {kPropertyTypeSize, kPropertyTypeRenderSize}},
        {kPropertyHintFullSize, {kPropertyTypeRenderSize}},
        {kPropertyHintXfrmNoPosition, transforms},
        {kPropertyHintXfrmNoRotation, transforms},
        {kPropertyHintXfrmNoScale, transforms},
        {kPropertyHintXfrmUniformScale, transforms},
        {kPropertyHintXfrmCollapsibleScale, transforms},
        {kHostHintTextures, {kPropertyTypeTexture}},
    };
}

/// Types of the vocabulary that the library itself has no editor for.
bool isForHosts(const QString &type)
{
    static const QStringList s_types{kPropertyTypeNone,   kPropertyTypeColorRGB, kPropertyTypePoint,
                                     kPropertyTypePointF, kPropertyTypeAngle,    kPropertyTypeSizeF,
                                     kPropertyTypeRect,   kPropertyTypeRectF};
    return s_types.contains(type) || !vocabularyTypes().contains(type);
}

} // namespace

const QStringList &knownHints()
{
    static const QStringList s_hints =
        vocabularyHints() + QStringList{kHostHintTextures, kHostHintHelp} + ruleHints();
    return s_hints;
}

bool isHintRead(const QString &type, const QString &hint)
{
    static const QMap<QString, QStringList> s_readers = makeReaders();
    const auto readers = s_readers.constFind(hint);
    return readers == s_readers.constEnd() || isForHosts(type) || readers->contains(type);
}

} // namespace Tessark::PropertyHost
