#include "host/FocusedField_p.h"

#include <property/Property.h>
#include <property/editors/FloatPropertyEditor.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QSignalBlocker>

#include <cmath>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

void showInFocusedField(PropertyEditor &editor, const QVariant &value)
{
    auto *const field = qobject_cast<QDoubleSpinBox *>(focusedFieldOf(editor));
    if (!field || !qobject_cast<FloatPropertyEditor *>(&editor))
        return;
    const QVariant scale = editor.editedProperty()->hint(kPropertyHintDisplayScale);
    const double shown = value.toDouble() * (scale.isNull() ? 1.0 : scale.toDouble());
    const QSignalBlocker blocker(field);
    if (std::isfinite(shown))
        field->setValue(shown);
}

QAbstractSpinBox *focusedFieldOf(PropertyEditor &editor)
{
    auto *const field = qobject_cast<QAbstractSpinBox *>(QApplication::focusWidget());
    const QWidget *const row = editor.widget(nullptr);
    return field && row && row->isAncestorOf(field) ? field : nullptr;
}

} // namespace Tessark::PropertyHost
