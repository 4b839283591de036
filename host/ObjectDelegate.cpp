#include "host/ObjectDelegate_p.h"

#include "host/HintUse_p.h"
#include "host/Messages_p.h"
#include "host/MetaFields_p.h"
#include "host/ObjectBinding.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QEvent>
#include <QMetaProperty>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// "highShelf_gain" becomes "High shelf gain"; capitals that stand together stay.
QString labelOf(const QString &name)
{
    QString label;
    for (int i = 0; i < name.size(); ++i) {
        const QChar letter = name.at(i);
        const bool beginsWord =
            i > 0 && letter.isUpper()
            && (!name.at(i - 1).isUpper() || (i + 1 < name.size() && name.at(i + 1).isLower()));
        const bool standsAlone = i + 1 >= name.size() || !name.at(i + 1).isUpper();
        if (beginsWord && !label.endsWith(QLatin1Char(' ')))
            label += QLatin1Char(' ');
        if (letter == QLatin1Char('_'))
            label += QLatin1Char(' ');
        else
            label += beginsWord && standsAlone ? letter.toLower() : letter;
    }
    label = label.simplified();
    if (!label.isEmpty())
        label[0] = label.at(0).toUpper();
    return label;
}

/// Whether a property is among those that options want, apart from its type.
bool isWanted(const QMetaObject &meta, int index, const ObjectBindingOptions &options)
{
    const QMetaProperty property = meta.property(index);
    const bool isHidden = meta.indexOfProperty(property.name()) != index; // by one further below
    const bool isEditable = property.isWritable() || options.readOnly != ReadOnlyRows::LeftOut;
    return property.isReadable() && !isHidden && isEditable
           && (options.withUndesignable || property.isDesignable());
}

SharedField chosenField(const QMetaProperty &property, const ObjectBindingOptions &options)
{
    const auto field = options.fieldOf ? options.fieldOf(property) : std::nullopt;
    return field ? std::make_shared<const ObjectField>(*field) : fieldOf(property);
}

int firstProperty(const QMetaObject &meta, const QMetaObject *above)
{
    return above && meta.inherits(above) ? above->propertyCount() : 0;
}

/// Takes away what a row that shows text has no use for.
void makeStaticText(Property &row)
{
    row.setRange({}, {});
    row.setDefaultValue({});
    const QStringList keys = row.hints.keys();
    for (const QString &key : keys) {
        if (!isHintRead(kPropertyTypeStaticText, key))
            row.hints.remove(key);
    }
    row.type = kPropertyTypeStaticText;
}

/// A value for the offer of "Set to Default" of a property whose RESET was not called yet: the one
/// that it has, if the row can show it.
QVariant provisionalDefault(const Property &row, const QVariant &value)
{
    const bool isUsable = !value.isNull() && isOfKind(row, value) && !isOutsideRange(row, value);
    return isUsable ? value : initialValue(row);
}

} // namespace

ObjectDelegate::ObjectDelegate() = default;

ObjectDelegate::~ObjectDelegate() = default;

void ObjectDelegate::addObject(QObject *object, const ObjectBindingOptions &options)
{
    connect(object, &QObject::destroyed, this, &ObjectDelegate::forget);
    add({object, nullptr}, *object->metaObject(), options);
}

void ObjectDelegate::addGadget(void *gadget, const QMetaObject &meta,
                               const ObjectBindingOptions &options)
{
    add({nullptr, gadget}, meta, options);
}

/// Also called while the object is destroyed.
void ObjectDelegate::forget(const void *objectOrGadget)
{
    const auto isOthers = [objectOrGadget](const Source &source) {
        return source.address != objectOrGadget;
    };
    std::vector<Source> others;
    std::vector<Source> forgotten;
    std::partition_copy(m_sources.begin(), m_sources.end(), std::back_inserter(others),
                        std::back_inserter(forgotten), isOthers);
    m_sources = std::move(others);
    for (const Source &source : forgotten)
        release(source);
}

void ObjectDelegate::forgetAll()
{
    const std::vector<Source> forgotten = std::exchange(m_sources, {});
    for (const Source &source : forgotten)
        release(source);
}

void ObjectDelegate::watch(PropertyEditorPanel *panel)
{
    m_panels.removeAll(nullptr);
    if (m_panels.contains(panel))
        return;
    m_panels.append(panel);
    panel->installEventFilter(this);
    const QPointer<ObjectDelegate> self(this);
    const QPointer<PropertyEditorPanel> alive(panel);
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    const QVector<QPointer<PropertyEditor>> watched(editors.begin(), editors.end());
    for (const QPointer<PropertyEditor> &editor : watched) {
        ObjectRow *const row =
            self && alive && editor ? m_rowOf.value(editor->editedProperty()) : nullptr;
        if (row)
            row->addEditor(panel, editor);
    }
}

QVector<Problem> ObjectDelegate::validate() const
{
    const QVector<Property *> rows = properties();
    QHash<const Property *, int> positions;
    for (int i = 0; i < rows.size(); ++i)
        positions.insert(rows.at(i), i);
    ProblemCollector collector;
    for (const Finding &finding : m_findings) {
        const QString pointer =
            finding.row ? rowPointer(positions.value(finding.row)) + finding.mistake.part
                        : QString();
        if (finding.mistake.isError)
            collector.error(pointer, finding.mistake.message);
        else
            collector.warning(pointer, finding.mistake.message);
    }
    QVector<Problem> problems = collector.take([&rows](int row) { return rows.at(row)->name; });
    problems += list().validate();
    std::stable_sort(
        problems.begin(), problems.end(),
        [](const Problem &left, const Problem &right) { return left.row < right.row; });
    return problems;
}

void ObjectDelegate::refresh()
{
    const QPointer<ObjectDelegate> self(this);
    for (std::size_t i = 0; self && i < m_rows.size(); ++i)
        m_rows[i]->show();
}

void ObjectDelegate::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    ObjectRow *const row = m_rowOf.value(property);
    if (!row) {
        StructDelegate::setValue(property, value, flags);
        return;
    }
    const bool isRevert = m_menuPanel && row->isResettable() && row->isShown(m_menuPanel, value);
    if (isRevert ? row->reset() : row->write(value))
        Q_EMIT valueChanged(property, flags.testFlag(ContinuedChange));
}

QVariant ObjectDelegate::value(Property *property)
{
    const bool isShown = m_shown.row && m_shown.row->editedProperty() == property;
    const ObjectRow *const row = isShown ? m_shown.row : m_rowOf.value(property);
    return row ? row->value() : StructDelegate::value(property);
}

bool ObjectDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *const panel = event->type() == QEvent::ContextMenu
                            ? qobject_cast<PropertyEditorPanel *>(watched)
                            : nullptr;
    if (!panel)
        return false;
    const QPointer<ObjectDelegate> self(this);
    const QPointer<PropertyEditorPanel> before = std::exchange(m_menuPanel, panel);
    watched->event(event); // returns when the menu is closed
    if (self)
        m_menuPanel = before;
    return true;
}

void ObjectDelegate::add(const ObjectTarget &target, const QMetaObject &meta,
                         const ObjectBindingOptions &options)
{
    m_sources.push_back(
        {target.gadget ? target.gadget : static_cast<const void *>(target.object.data()), {}});
    const ClassInfo info(meta);
    tell(nullptr, info, info.strangers());
    const std::vector<Plan> plans = planRows(meta, info, options);
    QSet<QString> groups;
    for (const Plan &plan : plans) {
        if (plan.group.isEmpty()) {
            appendRow(target, plan, info, options);
        } else if (!groups.contains(plan.group)) {
            groups.insert(plan.group);
            list().group(plan.group, [&] {
                for (const Plan &member : plans) {
                    if (member.group == plan.group)
                        appendRow(target, member, info, options);
                }
            });
        }
    }
}

std::vector<ObjectDelegate::Plan> ObjectDelegate::planRows(const QMetaObject &meta,
                                                           const ClassInfo &info,
                                                           const ObjectBindingOptions &options)
{
    std::vector<Plan> plans;
    for (int i = firstProperty(meta, options.above); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const QString name = QString::fromLatin1(property.name());
        if (!isWanted(meta, i, options))
            continue;
        if (const SharedField field = chosenField(property, options)) {
            plans.push_back({property, field, info.group(name)});
            continue;
        }
        const QString message = Messages::tr("no row shows the property %1, of type %2")
                                    .arg(quoted(name), QString::fromLatin1(property.typeName()));
        tell(nullptr, info, {{QString(), message, QString(), false}});
    }
    return plans;
}

void ObjectDelegate::appendRow(const ObjectTarget &target, const Plan &plan, const ClassInfo &info,
                               const ObjectBindingOptions &options)
{
    const QString name = QString::fromLatin1(plan.property.name());
    const QString label = info.label(name);
    const bool isReadOnly = !plan.property.isWritable();
    const bool isText = isReadOnly && options.readOnly == ReadOnlyRows::StaticText;
    PropertyRow line =
        list().add(plan.field->type, options.prefix + name, label.isNull() ? labelOf(name) : label);
    const SharedField field =
        isText ? std::make_shared<const ObjectField>(toStaticText(*plan.field, plan.property))
               : plan.field;
    auto row = std::make_unique<ObjectRow>(target, plan.property, field, isReadOnly, &m_shown);
    row->setEditedProperty(&line.property());
    describe(*row, plan, info);
    if (isText)
        makeStaticText(line.property());
    else if (isReadOnly)
        row->disable();
    row->connectNotification();
    m_rowOf.insert(row->editedProperty(), row.get());
    if (!m_rowNamed.contains(line.property().name))
        m_rowNamed.insert(line.property().name, row->editedProperty());
    m_sources.back().rows.emplace_back(row.get());
    m_rows.push_back(std::move(row));
}

void ObjectDelegate::describe(ObjectRow &row, const Plan &plan, const ClassInfo &info)
{
    Property &property = *row.editedProperty();
    if (plan.field->prepare)
        plan.field->prepare(PropertyRow(property));
    tell(&property, info, info.apply(plan.property, property));
    if (row.isResettable() && property.defaultValue.isNull())
        property.setDefaultValue(provisionalDefault(property, row.value()));
}

void ObjectDelegate::tell(const Property *row, const ClassInfo &info,
                          const QVector<ClassInfoMistake> &mistakes)
{
    for (ClassInfoMistake mistake : mistakes) {
        mistake.message = mistake.name.isEmpty()
                              ? Messages::tr("%1: %2").arg(info.className(), mistake.message)
                              : Messages::tr("class information %1 of %2: %3")
                                    .arg(quoted(mistake.name), info.className(), mistake.message);
        m_findings.append({row, mistake});
    }
}

/// Rows may go meanwhile: the host is told of fields that lose the focus.
void ObjectDelegate::release(const Source &source)
{
    for (const QPointer<ObjectRow> &row : source.rows) {
        if (row)
            row->release();
    }
}

} // namespace Tessark::PropertyHost
