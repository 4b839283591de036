#include "host/ObjectRow_p.h"

#include "host/HintUse_p.h"
#include "host/ValueJson.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QMetaMethod>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// Has an editor fetched that is needed soon, while its object is asked for the value: among very
/// many rows it is in no cache, and to wait for it was a twelfth of what a notification takes.
void prefetch(const void *editor)
{
#if defined(__GNUC__)
    constexpr int kCacheLine = 64; // bytes; an editor has some two of them
    __builtin_prefetch(editor);
    __builtin_prefetch(static_cast<const char *>(editor) + kCacheLine);
#else
    Q_UNUSED(editor)
#endif
}

} // namespace

bool ObjectTarget::has(const QMetaProperty &property) const
{
    return gadget || (object && object->metaObject()->inherits(property.enclosingMetaObject()));
}

QVariant ObjectTarget::read(const QMetaProperty &property) const
{
    return gadget ? property.readOnGadget(gadget) : property.read(object);
}

bool ObjectTarget::write(const QMetaProperty &property, const QVariant &value) const
{
    return gadget ? property.writeOnGadget(gadget, value) : property.write(object, value);
}

bool ObjectTarget::reset(const QMetaProperty &property) const
{
    return gadget ? property.resetOnGadget(gadget) : property.reset(object);
}

PropertyEditorPanel *ObjectRow::View::panel() const
{
    return qobject_cast<PropertyEditorPanel *>(panelObject.data());
}

ObjectRow::ObjectRow(ObjectTarget target, const QMetaProperty &meta, SharedField field,
                     bool isReadOnly, ShownRow *shown)
    : m_target(std::move(target))
    , m_field(std::move(field))
    , m_shown(shown)
    , m_meta(meta)
    , m_isReadOnly(isReadOnly)
{
}

bool ObjectRow::isWritable() const
{
    return !m_isReadOnly && m_target.has(m_meta);
}

bool ObjectRow::isResettable() const
{
    return isWritable() && m_meta.isResettable();
}

QVariant ObjectRow::value() const
{
    return m_target.has(m_meta) ? toRow(*m_field, m_target.read(m_meta)) : QVariant();
}

bool ObjectRow::write(const QVariant &edited)
{
    const QVariant value = isWritable() ? fromRow(*m_field, edited) : QVariant();
    return change([&value](const ObjectTarget &target, const QMetaProperty &meta) {
        target.write(meta, value);
    });
}

bool ObjectRow::reset()
{
    const bool done =
        change([](const ObjectTarget &target, const QMetaProperty &meta) { target.reset(meta); });
    const QVariant standard = done ? value() : QVariant();
    if (!standard.isNull())
        m_property->setDefaultValue(standard);
    return done;
}

void ObjectRow::show()
{
    if (m_views.size() == 1) {
        showIn(m_views.front());
        return;
    }
    const QPointer<ObjectRow> self(this);
    for (int i = 0; self && i < m_views.size(); ++i)
        showIn(m_views[i]);
}

void ObjectRow::connectNotification()
{
    static const int s_slot = staticMetaObject.indexOfSlot("notified()");
    if (m_target.object && m_meta.hasNotifySignal())
        connect(m_target.object, m_meta.notifySignal(), this, staticMetaObject.method(s_slot));
}

void ObjectRow::addEditor(PropertyEditorPanel *panel, PropertyEditor *editor)
{
    m_views.erase(
        std::remove_if(m_views.begin(), m_views.end(),
                       [](const View &view) { return !view.panelObject || !view.editor; }),
        m_views.end());
    m_views.push_back({panel, editor, editor, false});
    connect(editor, &PropertyEditor::startInteractiveChange, this,
            [this, editor] { setInRun(editor, true); });
    connect(editor, &PropertyEditor::endInteractiveChange, this,
            [this, editor] { setInRun(editor, false); });
    if (!isWritable())
        disable(m_views.back());
}

bool ObjectRow::isShown(const PropertyEditorPanel *panel, const QVariant &value) const
{
    return std::any_of(m_views.begin(), m_views.end(), [&](const View &view) {
        return view.panel() == panel && view.editor
               && isSameValue(*m_property, view.editor->value(), value);
    });
}

void ObjectRow::disable()
{
    if (isHintRead(m_property->type, kPropertyHintEnabled))
        m_property->setHint(kPropertyHintEnabled, false);
    const QPointer<ObjectRow> self(this);
    for (int i = 0; self && i < m_views.size(); ++i)
        disable(View(m_views[i]));
}

void ObjectRow::release()
{
    m_target = {};
    disable();
}

void ObjectRow::notified()
{
    for (const View &view : std::as_const(m_views))
        prefetch(view.editorMemory);
    if (!m_isWriting && m_target.has(m_meta))
        show();
}

/// The object may tell of the change, and the host may delete everything meanwhile.
template <typename Change>
bool ObjectRow::change(Change makeChange)
{
    const QPointer<ObjectRow> self(this);
    const bool canChange = isWritable();
    if (canChange) {
        const ObjectTarget target = m_target;
        const QMetaProperty meta = m_meta;
        const bool wasWriting = std::exchange(m_isWriting, true);
        makeChange(target, meta);
        if (!self)
            return false;
        m_isWriting = wasWriting;
    }
    if (!m_isWriting)
        showResult();
    return self && canChange;
}

/// The row may be gone afterwards, and its views changed.
void ObjectRow::showIn(const View &view)
{
    if (view.isInRun) {
        showUnlessShown(View(view));
        return;
    }
    PropertyEditorPanel *const panel = view.panel();
    const QPointer<PropertyEditor> editor = view.editor;
    if (!panel || !editor)
        return;
    m_shown->row = this;
    const QVariant current = panel->value(m_property);
    if (editor)
        editor->setValue(current);
}

/// Shows what the object made of an edit, which the editor of the edit shows already unless the
/// object wanted it otherwise.
void ObjectRow::showResult()
{
    const QPointer<ObjectRow> self(this);
    for (int i = 0; self && i < m_views.size(); ++i) {
        if (!m_views[i].isInRun)
            showUnlessShown(View(m_views[i]));
    }
}

void ObjectRow::setInRun(const PropertyEditor *editor, bool isInRun)
{
    const auto view = std::find_if(m_views.begin(), m_views.end(),
                                   [editor](const View &other) { return other.editor == editor; });
    if (view == m_views.end())
        return;
    view->isInRun = isInRun;
    if (!isInRun && !m_isWriting)
        showUnlessShown(View(*view));
}

void ObjectRow::showUnlessShown(const View &view)
{
    PropertyEditorPanel *const panel = view.panel();
    if (!panel || !m_target.has(m_meta))
        return;
    const QPointer<ObjectRow> self(this);
    const QVariant current = panel->value(m_property);
    if (!self || !view.editor)
        return;
    if (!isSameValue(*m_property, asKept(view.editor->value()), asKept(current)))
        view.editor->setValue(current);
}

/// The value of an editor as it comes back from the property, in single precision for instance.
QVariant ObjectRow::asKept(const QVariant &value) const
{
    return m_isReadOnly ? value : toRow(*m_field, fromRow(*m_field, value));
}

void ObjectRow::disable(const View &view)
{
    if (QWidget *const widget = view.editor ? view.editor->widget(nullptr) : nullptr)
        widget->setEnabled(false);
}

} // namespace Tessark::PropertyHost
