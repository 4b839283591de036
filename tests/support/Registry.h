#pragma once

#include "property/Property.h"
#include "property/PropertyEditorPanel.h"
#include "property/PropertyEditorRegistry.h"

#include <QVector>

/// The factory that the registry has for a type string, or null.
inline Tessark::PropertyUI::PropertyEditorRegistry::Factory factoryOf(const QString &type)
{
    Tessark::PropertyUI::Property property(QString(), QString(), type);
    return Tessark::PropertyUI::PropertyEditorRegistry::Instance()->factory(&property);
}

/// A type string that the library registers an editor for, and the class of that editor's meta-object:
/// the vector editors share their base's.
struct LibraryEditor
{
    QString type;
    const char *className;
};

/// All types that have an editor, with the class each is to have, and the registry filled.
inline QVector<LibraryEditor> libraryEditors()
{
    using namespace Tessark::PropertyUI;
    const QVector<LibraryEditor> all = {
        {kPropertyTypeInteger, "Tessark::PropertyUI::IntegerPropertyEditor"},
        {kPropertyTypeFloat, "Tessark::PropertyUI::FloatPropertyEditor"},
        {kPropertyTypePercent, "Tessark::PropertyUI::PercentPropertyEditor"},
        {kPropertyTypeBoolean, "Tessark::PropertyUI::BooleanPropertyEditor"},
        {kPropertyTypeColor, "Tessark::PropertyUI::ColorPropertyEditor"},
        {kPropertyTypeImage, "Tessark::PropertyUI::ImagePropertyEditor"},
        {kPropertyTypeStaticText, "Tessark::PropertyUI::StaticTextPropertyEditor"},
        {kPropertyTypeString, "Tessark::PropertyUI::StringPropertyEditor"},
        {kPropertyTypeText, "Tessark::PropertyUI::TextPropertyEditor"},
        {kPropertyTypeEnumeration, "Tessark::PropertyUI::EnumerationPropertyEditor"},
        {kPropertyTypeSeparator, "Tessark::PropertyUI::SeparatorPropertyEditor"},
        {kPropertyTypeVec2, "Tessark::PropertyUI::VecPropertyEditor"},
        {kPropertyTypeVec3, "Tessark::PropertyUI::VecPropertyEditor"},
        {kPropertyTypeVec4, "Tessark::PropertyUI::VecPropertyEditor"},
        {kPropertyTypeSize, "Tessark::PropertyUI::SizePropertyEditor"},
        {kPropertyTypeBeginGroup, "Tessark::PropertyUI::GroupPropertyEditor"},
        {kPropertyTypeEndGroup, "Tessark::PropertyUI::GroupPropertyEditor"},
        {kPropertyTypeBeginTabGroup, "Tessark::PropertyUI::TabPropertyEditor"},
        {kPropertyTypeEndTabGroup, "Tessark::PropertyUI::TabPropertyEditor"},
        {kPropertyTypeTab, "Tessark::PropertyUI::TabPropertyEditor"},
        {kPropertyTypeFilename, "Tessark::PropertyUI::FilenamePropertyEditor"},
        {kPropertyTypeAction, "Tessark::PropertyUI::ActionPropertyEditor"},
        {kPropertyTypeRenderSize, "Tessark::PropertyUI::RenderSizePropertyEditor"},
        {kPropertyTypeImageFormat, "Tessark::PropertyUI::ImageFormatEditor"},
        {kPropertyTypeTransform2D, "Tessark::PropertyUI::Transform2DPropertyEditor"},
        {kPropertyTypeTexture, "Tessark::PropertyUI::TexturePropertyEditor"},
    };
    PropertyEditorPanel::InitialiseRegistry();
    return all;
}
