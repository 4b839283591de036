#include "PanelWidth.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyVocabulary.h>

#include <QLayout>
#include <QTabWidget>

#include <algorithm>

namespace Tessark::PropertyPanel {

namespace {

int wantedWidth(const QLayoutItem &item)
{
    const int wanted = std::min(item.sizeHint().width(), item.maximumSize().width());
    return std::max(wanted, item.minimumSize().width());
}

void widen(QWidget *widget)
{
    QLayout *const layout = widget->layout();
    if (!layout)
        return;
    // Where a row begins does not depend on the width; so any layout shows it.
    layout->setGeometry(widget->rect());
    int right = 0;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *const item = layout->itemAt(i);
        if (!item->isEmpty())
            right = std::max(right, item->geometry().x() + wantedWidth(*item));
    }
    widget->setMinimumWidth(right + layout->contentsMargins().right());
}

} // namespace

void widenToContents(PropertyUI::PropertyEditorPanel &panel)
{
    QVector<PropertyUI::PropertyEditor *> pages;
    panel.getEditors(pages, PropertyUI::kPropertyTypeTab);
    // Inner pages come after the pages around them; these need the width of the inner ones.
    std::for_each(pages.rbegin(), pages.rend(),
                  [](PropertyUI::PropertyEditor *editor) { widen(editor->widget(nullptr)); });
    widen(&panel);
}

} // namespace Tessark::PropertyPanel
