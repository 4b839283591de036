#include "host/TextsAsWritten.h"

#include <property/PropertyEditorPanel.h>

#include <QLabel>

namespace Tessark::PropertyHost {

void showTextsAsWritten(PropertyUI::PropertyEditorPanel &panel)
{
    const auto labels = panel.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
}

} // namespace Tessark::PropertyHost
