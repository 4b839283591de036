#pragma once

#include "property/PropertyExport.h"

#include <QMap>
#include <QString>

namespace Tessark::PropertyUI {

class Property;
class PropertyEditor;

/**
 * Maps a property type string to the function that makes its editor.
 *
 * There is one registry in the process. The first panel fills it with the library's own editors;
 * hosts add editors of their own types, or replace the library's, by type string. A host that
 * replaces one does so after its first panel, or after PropertyEditorPanel::InitialiseRegistry().
 */
class TESSARK_PROPERTY_EXPORT PropertyEditorRegistry
{
public:
    /// Makes a new editor without parent for the property, which must outlive the editor.
    using Factory = PropertyEditor *(*)(Property *);

    /// The one registry, made on the first call and alive until the process exits.
    static PropertyEditorRegistry *Instance();

    /// Sets the factory of a type string; the last registration wins. Null takes the editor away.
    void registerPropertyEditor(const QString &type, Factory editorFactory);

    /// The factory for property->type, matched whole and case-sensitively, or null.
    Factory factory(Property *property);

private:
    QMap<QString, Factory> m_factories;
};

} // namespace Tessark::PropertyUI
