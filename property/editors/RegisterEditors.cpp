#include "property/PropertyEditorPanel.h"

#include "property/PropertyEditorRegistry.h"
#include "property/PropertyVocabulary.h"
#include "property/editors/ActionPropertyEditor.h"
#include "property/editors/BooleanPropertyEditor.h"
#include "property/editors/FilenamePropertyEditor.h"
#include "property/editors/GroupPropertyEditor.h"
#include "property/editors/SeparatorPropertyEditor.h"
#include "property/editors/StaticTextPropertyEditor.h"
#include "property/editors/StringPropertyEditor.h"
#include "property/editors/TabPropertyEditor.h"
#include "property/editors/TextPropertyEditor.h"

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
        {kPropertyTypeBoolean, BooleanPropertyEditor::Factory},
        {kPropertyTypeStaticText, StaticTextPropertyEditor::Factory},
        {kPropertyTypeString, StringPropertyEditor::Factory},
        {kPropertyTypeText, TextPropertyEditor::Factory},
        {kPropertyTypeSeparator, SeparatorPropertyEditor::Factory},
        {kPropertyTypeBeginGroup, GroupPropertyEditor::Factory},
        {kPropertyTypeEndGroup, GroupPropertyEditor::Factory},
        {kPropertyTypeBeginTabGroup, TabPropertyEditor::Factory},
        {kPropertyTypeEndTabGroup, TabPropertyEditor::Factory},
        {kPropertyTypeTab, TabPropertyEditor::Factory},
        {kPropertyTypeFilename, FilenamePropertyEditor::Factory},
        {kPropertyTypeAction, ActionPropertyEditor::Factory},
    };
    for (const Registration &registration : registrations) {
        PropertyEditorRegistry::Instance()->registerPropertyEditor(registration.type,
                                                                   registration.factory);
    }
}

} // namespace Tessark::PropertyUI
