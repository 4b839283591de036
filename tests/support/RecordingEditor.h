#pragma once

#include "property/PropertyEditor.h"

/// An editor such as a host writes, with nothing of its own but a record of the values it was to
/// show.
class RecordingEditor : public Tessark::PropertyUI::PropertyEditor
{
public:
    static Tessark::PropertyUI::PropertyEditor *Factory(Tessark::PropertyUI::Property *property)
    {
        return new RecordingEditor(property);
    }

    using PropertyEditor::PropertyEditor;

    void setValue(const QVariant &value) override { shown.append(value); }
    QVariant value() const override { return shown.isEmpty() ? QVariant() : shown.last(); }

    QVector<QVariant> shown;
};
