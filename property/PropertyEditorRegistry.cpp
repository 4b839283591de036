#include "property/PropertyEditorRegistry.h"

#include "property/Property.h"

namespace Tessark::PropertyUI {

PropertyEditorRegistry *PropertyEditorRegistry::Instance()
{
    static PropertyEditorRegistry instance;
    return &instance;
}

void PropertyEditorRegistry::registerPropertyEditor(const QString &type, Factory editorFactory)
{
    m_factories.insert(type, editorFactory);
}

PropertyEditorRegistry::Factory PropertyEditorRegistry::factory(Property *property)
{
    if (!property)
        return nullptr;
    // The index operator adds an unknown type with a null factory. That is deliberate: null means
    // "no editor", and a later registration replaces it.
    return m_factories[property->type];
}

} // namespace Tessark::PropertyUI
