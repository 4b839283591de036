#include "property/PropertyEditorPanel.h"

#include "property/PropertyEditorRegistry.h"
#include "property/PropertyVocabulary.h"
#include "property/editors/ActionPropertyEditor.h"
#include "property/editors/BooleanPropertyEditor.h"
#include "property/editors/ColorPropertyEditor.h"
#include "property/editors/EnumerationPropertyEditor.h"
#include "property/editors/FilenamePropertyEditor.h"
#include "property/editors/FloatPropertyEditor.h"
#include "property/editors/GroupPropertyEditor.h"
#include "property/editors/ImageFormatEditor.h"
#include "property/editors/ImagePropertyEditor.h"
#include "property/editors/IntegerPropertyEditor.h"
#include "property/editors/PercentPropertyEditor.h"
#include "property/editors/RenderSizePropertyEditor.h"
#include "property/editors/SeparatorPropertyEditor.h"
#include "property/editors/SizePropertyEditor.h"
#include "property/editors/StaticTextPropertyEditor.h"
#include "property/editors/StringPropertyEditor.h"
#include "property/editors/TabPropertyEditor.h"
#include "property/editors/TextPropertyEditor.h"
#include "property/editors/TexturePropertyEditor.h"
#include "property/editors/Transform2DPropertyEditor.h"
#include "property/editors/VecPropertyEditor.h"

namespace Tessark::PropertyUI {

void PropertyEditorPanel::InitialiseRegistry()
{
    static bool s_initialised = false;
    if (s_initialised)
        return;
    s_initialised = true;

    struct Registration
    {
        const QString &type;
        PropertyEditorRegistry::Factory factory;
    };
    const Registration registrations[] = {
        {kPropertyTypeInteger, IntegerPropertyEditor::Factory},
        {kPropertyTypeFloat, FloatPropertyEditor::Factory},
        {kPropertyTypePercent, PercentPropertyEditor::Factory},
        {kPropertyTypeBoolean, BooleanPropertyEditor::Factory},
        {kPropertyTypeColor, ColorPropertyEditor::Factory},
        {kPropertyTypeImage, ImagePropertyEditor::Factory},
        {kPropertyTypeStaticText, StaticTextPropertyEditor::Factory},
        {kPropertyTypeString, StringPropertyEditor::Factory},
        {kPropertyTypeText, TextPropertyEditor::Factory},
        {kPropertyTypeEnumeration, EnumerationPropertyEditor::Factory},
        {kPropertyTypeSeparator, SeparatorPropertyEditor::Factory},
        {kPropertyTypeVec2, Vec2PropertyEditor::Factory},
        {kPropertyTypeVec3, Vec3PropertyEditor::Factory},
        {kPropertyTypeVec4, Vec4PropertyEditor::Factory},
        {kPropertyTypeSize, SizePropertyEditor::Factory},
        {kPropertyTypeBeginGroup, GroupPropertyEditor::Factory},
        {kPropertyTypeEndGroup, GroupPropertyEditor::Factory},
        {kPropertyTypeBeginTabGroup, TabPropertyEditor::Factory},
        {kPropertyTypeEndTabGroup, TabPropertyEditor::Factory},
        {kPropertyTypeTab, TabPropertyEditor::Factory},
        {kPropertyTypeFilename, FilenamePropertyEditor::Factory},
        {kPropertyTypeAction, ActionPropertyEditor::Factory},
        {kPropertyTypeRenderSize, RenderSizePropertyEditor::Factory},
        {kPropertyTypeImageFormat, ImageFormatEditor::Factory},
        {kPropertyTypeTransform2D, Transform2DPropertyEditor::Factory},
        {kPropertyTypeTexture, TexturePropertyEditor::Factory},
    };
    for (const Registration &registration : registrations) {
        PropertyEditorRegistry::Instance()->registerPropertyEditor(registration.type,
                                                                   registration.factory);
    }
}

} // namespace Tessark::PropertyUI
