#include "property/PropertyEditorPanel.h"

#include "property/AccessibleRows_p.h"
#include "property/Property.h"
#include "property/PropertyEditor.h"
#include "property/PropertyEditorRegistry.h"
#include "property/PropertyLayout.h"
#include "property/ThreadCheck_p.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QFont>
#include <QMenu>
#include <QStack>
#include <QTabWidget>

#include <tuple>
#include <utility>

namespace Tessark::PropertyUI {

namespace {

constexpr int kRowSpacing = 4;

// One flag for all panels on purpose: while a host describes a property anew, no editor of any
// panel writes to a delegate.
bool s_updatingProperty = false;

void applyWidgetHints(PropertyEditor &editor, QWidget &widget)
{
    const QVariant size = editor.hint(kPropertyHintSize);
    if (!size.isNull())
        widget.setFixedSize(size.toSize()); // an unconvertible one is passed on as (-1, -1)
    const QVariant font = editor.hint(kPropertyHintFont);
    if (!font.isNull())
        widget.setFont(font.value<QFont>());
    const QVariant styleSheet = editor.hint(kPropertyHintStyleSheet);
    if (!styleSheet.isNull())
        widget.setStyleSheet(styleSheet.toString());
}

QString rowLabel(const Property &property)
{
    return property.label.isEmpty() ? QString() : property.label + QLatin1Char(':');
}

} // namespace

/// Turns the list into editors and rows while the panel is constructed.
class PropertyEditorPanel::Builder
{
public:
    Builder(PropertyEditorPanel *panel, PropertyEditorContext *context)
        : m_panel(panel)
        , m_context(context)
    {
    }

    void add(Property *property)
    {
        const auto factory = PropertyEditorRegistry::Instance()->factory(property);
        if (!factory)
            return;
        PropertyEditor *editor = factory(property);
        if (editor) {
            editor->setParent(m_panel);
            QWidget *widget = editor->widget(m_context);
            if (widget)
                addRow(*editor, *property, widget);
            followTabs(*property, widget);
            connectToPanel(editor);
            m_panel->m_indexesOf.insert(editor->editedProperty(), int(m_panel->m_editors.size()));
        }
        m_panel->m_editors.append(editor);
    }

private:
    void addRow(PropertyEditor &editor, const Property &property, QWidget *widget)
    {
        applyWidgetHints(editor, *widget);
        if (editor.hint(kPropertyHintFullWidth).toBool())
            m_panel->m_layout->addRow(widget);
        else
            m_panel->m_layout->addRow(rowLabel(property), widget);
    }

    /// Switches to the page that the following rows go to. Groups need nothing here: their markers
    /// are rows that the layout knows by dynamic properties.
    void followTabs(const Property &property, QWidget *widget)
    {
        if (property.type == kPropertyTypeBeginTabGroup)
            beginTabGroup(widget);
        else if (property.type == kPropertyTypeEndTabGroup)
            endTabGroup();
        else if (property.type == kPropertyTypeTab)
            addTab(property.label, widget);
    }

    void beginTabGroup(QWidget *widget)
    {
        m_outer.push({m_tabWidget, m_panel->m_layout});
        m_tabWidget = qobject_cast<QTabWidget *>(widget);
    }

    void endTabGroup()
    {
        if (m_outer.isEmpty()) {
            qWarning("Bad tab property nesting: End group with no Begin.");
            return;
        }
        std::tie(m_tabWidget, m_panel->m_layout) = m_outer.pop();
    }

    void addTab(const QString &label, QWidget *page)
    {
        if (!m_tabWidget) {
            qWarning("Tab property created outside a tab group");
            return;
        }
        if (!page)
            return;
        m_panel->m_layout->removeWidget(page); // where it was added as a row
        m_tabWidget->addTab(page, label);
        m_panel->m_layout = new PropertyLayout(kRowSpacing);
        page->setLayout(m_panel->m_layout);
    }

    void connectToPanel(PropertyEditor *editor)
    {
        // Each connection knows its editor: finding the sender again takes Qt a walk over the
        // connections of all editors.
        PropertyEditorPanel *const panel = m_panel;
        connect(editor, &PropertyEditor::valueChanged, panel,
                [panel, editor] { panel->forwardEdit(editor); });
        connect(editor, &PropertyEditor::startInteractiveChange, panel,
                [panel, editor] { panel->beginRun(editor); });
        connect(editor, &PropertyEditor::endInteractiveChange, panel,
                [panel, editor] { panel->endRun(editor); });
    }

    PropertyEditorPanel *m_panel;
    PropertyEditorContext *m_context;
    QTabWidget *m_tabWidget = nullptr;
    QStack<std::pair<QTabWidget *, PropertyLayout *>> m_outer; // of the enclosing tab groups
};

PropertyEditorPanel::PropertyEditorPanel(QVector<Property *> properties,
                                         IPropertyEditorDelegate *delegate,
                                         PropertyEditorContext *context)
    : QWidget(noParentInGuiThread())
    , m_properties(std::move(properties))
    , m_delegate(delegate)
{
    InitialiseRegistry();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    auto *const topLayout = new PropertyLayout(kRowSpacing);
    m_layout = topLayout;

    // A tab group left open at the end of the list is not repaired: m_layout stays that of its last
    // page, on purpose.
    m_editors.reserve(m_properties.size());
    m_indexesOf.reserve(m_properties.size());
    Builder builder(this, context);
    for (Property *property : std::as_const(m_properties))
        builder.add(property);
    // Only now, so that the rows' widgets are children behind all editors: whenever one of them is
    // painted, Qt looks through the children behind it.
    setLayout(topLayout);
    AccessibleRows::refresh(this);
}

PropertyEditorPanel::~PropertyEditorPanel()
{
    // Closing the window takes the focus from a field, whose editor then announces the edit. The
    // panel is half gone by then and must not be told.
    for (PropertyEditor *editor : std::as_const(m_editors)) {
        if (editor)
            editor->disconnect(this);
    }
}

void PropertyEditorPanel::setValue(Property *property, const QVariant &value,
                                   IPropertyEditorDelegate::ChangeFlags flags)
{
    if (!s_updatingProperty && m_delegate)
        m_delegate->setValue(property, value, flags);
}

QVariant PropertyEditorPanel::value(Property *property) const
{
    return m_delegate ? m_delegate->value(property) : QVariant();
}

void PropertyEditorPanel::updateProperty(Property *property)
{
    // A nested call clears the flag when it ends, as the inner of two scopes that share one flag.
    s_updatingProperty = true;
    const QPointer<PropertyEditorPanel> self(this);
    const QList<int> indexes = m_indexesOf.values(property); // the latest first
    for (auto index = indexes.crbegin(); self && index != indexes.crend(); ++index) {
        if (PropertyEditor *editor = m_editors.at(*index))
            editor->propertyChanged();
    }
    s_updatingProperty = false;
    if (self)
        AccessibleRows::refresh(this);
}

void PropertyEditorPanel::getEditors(QVector<PropertyEditor *> &editors, const QString &type) const
{
    for (PropertyEditor *editor : m_editors) {
        if (type.isEmpty() || (editor && editor->editedProperty()->type == type))
            editors.append(editor);
    }
}

void PropertyEditorPanel::updateUI()
{
    if (!m_delegate)
        return;
    const QPointer<PropertyEditorPanel> self(this);
    for (int i = 0; self && i < m_editors.size(); ++i) {
        const QPointer<PropertyEditor> editor = m_editors.at(i);
        if (!editor)
            continue;
        const QVariant current = value(editor->editedProperty());
        if (editor)
            editor->setValue(current);
    }
}

void PropertyEditorPanel::contextMenuEvent(QContextMenuEvent *event)
{
    PropertyEditor *editor = editorAt(event->pos());
    if (!editor || editor->editedProperty()->defaultValue.isNull())
        return;
    QMenu menu;
    menu.addAction(tr("Set to Default"), editor, &PropertyEditor::revertToDefaultValue);
    menu.exec(QCursor::pos());
}

void PropertyEditorPanel::showGroup(PropertyEditor *group, bool open)
{
    if (m_layout)
        m_layout->setGroupVisible(group->widget(nullptr), open);
}

/// The first editor whose widget covers position. Geometries are compared unmapped, so only rows of
/// the panel's own layout are told apart by it; that is accepted.
PropertyEditor *PropertyEditorPanel::editorAt(const QPoint &position) const
{
    for (PropertyEditor *editor : m_editors) {
        const QWidget *widget = editor ? editor->widget(nullptr) : nullptr;
        if (widget && widget->isVisibleTo(this) && widget->geometry().contains(position))
            return editor;
    }
    return nullptr;
}

void PropertyEditorPanel::editorValueChanged()
{
    if (auto *editor = qobject_cast<PropertyEditor *>(sender()))
        forwardEdit(editor);
}

void PropertyEditorPanel::startInteractiveChange()
{
    if (auto *editor = qobject_cast<PropertyEditor *>(sender()))
        beginRun(editor);
}

void PropertyEditorPanel::endInteractiveChange()
{
    m_interactiveEditor = nullptr;
    m_interactiveChangeSeen = false;
}

// The host is told after the panel, and may delete what it likes.

void PropertyEditorPanel::forwardEdit(PropertyEditor *editor)
{
    editor->keepControls();
    const QPointer<PropertyEditorPanel> self(this);
    const QPointer<PropertyEditor> editorAlive(editor);
    Property *const property = editor->editedProperty();
    const bool continued = m_interactiveEditor == editor && m_interactiveChangeSeen;

    setValue(property, editor->value(),
             continued ? IPropertyEditorDelegate::ContinuedChange
                       : IPropertyEditorDelegate::NewChange);
    if (!self)
        return;

    m_interactiveChangeSeen = editorAlive && m_interactiveEditor == editorAlive;
    if (!m_interactiveChangeSeen)
        m_interactiveEditor = nullptr; // an edit elsewhere ends the running change
    if (editorAlive && property->type == kPropertyTypeBeginGroup)
        showGroup(editor, editor->value().toBool());
}

void PropertyEditorPanel::beginRun(PropertyEditor *editor)
{
    editor->keepControls();
    m_interactiveEditor = editor;
    m_interactiveChangeSeen = false;
}

void PropertyEditorPanel::endRun(PropertyEditor *editor)
{
    editor->keepControls();
    endInteractiveChange();
}

} // namespace Tessark::PropertyUI
