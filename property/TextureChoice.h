#pragma once

#include "property/PropertyExport.h"

#include <QIcon>
#include <QImage>
#include <QMetaType>
#include <QString>

namespace Tessark::PropertyUI {

/// One texture that a "texture" property can hold. All three fields are null when not known.
struct TESSARK_PROPERTY_EXPORT TextureChoice
{
    QString name; // shown in the list; the whole of the texture's text form
    QImage image; // the texture itself
    QIcon icon;   // shown beside the name
};

} // namespace Tessark::PropertyUI

Q_DECLARE_METATYPE(Tessark::PropertyUI::TextureChoice)
