#include "host/NumberEntry.h"

#include "host/NumberFieldAccess_p.h"
#include "host/NumberField_p.h"
#include "host/NumberNames_p.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

NumberEntry::NumberEntry(PropertyEditorPanel *panel, QObject *parent)
    : QObject(parent)
    , m_names(std::make_unique<NumberNames>(*panel))
{
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        const auto fields = numberFieldsIn(editor ? editor->widget(nullptr) : nullptr);
        for (QAbstractSpinBox *field : fields)
            new NumberField({panel, editor, field}, *m_names, this);
    }
}

NumberEntry::~NumberEntry()
{
    // They use the names.
    qDeleteAll(findChildren<NumberField *>(QString(), Qt::FindDirectChildrenOnly));
}

} // namespace Tessark::PropertyHost
