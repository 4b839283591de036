#include "host/SelectionMarks_p.h"

#include "host/EditorRange_p.h"
#include "host/ValueJson.h"
#include "host/ValueKind_p.h"
#include "host/ViewPanel_p.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStyle>

#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr char kMixedProperty[] = "mixed";
constexpr int kRatePart = 1;

/// The widget itself or the first of the kind in it.
template <typename Control>
Control *controlIn(QWidget &widget)
{
    auto *const control = qobject_cast<Control *>(&widget);
    return control ? control : widget.findChild<Control *>();
}

/// Which parts of a transform have fields, in order.
QVector<int> transformParts(const Property &property)
{
    QVector<int> parts;
    if (!property.hint(kPropertyHintXfrmNoPosition).toBool())
        parts += {0, 1};
    if (!property.hint(kPropertyHintXfrmNoRotation).toBool())
        parts += 2;
    if (property.hint(kPropertyHintXfrmNoScale).toBool())
        return parts;
    parts += 3;
    if (!property.hint(kPropertyHintXfrmUniformScale).toBool())
        parts += 4;
    return parts;
}

int partOfField(const Property &property, int field)
{
    switch (typeTraits(property.type).kind) {
    case ValueKind::Matrix:
        return transformParts(property).value(field, field);
    case ValueKind::ImageFormat:
        return kRatePart;
    default:
        return field;
    }
}

bool isBlank(const QAbstractSpinBox &box)
{
    if (const auto *const whole = qobject_cast<const QSpinBox *>(&box))
        return whole->cleanText().isEmpty();
    if (const auto *const number = qobject_cast<const QDoubleSpinBox *>(&box))
        return number->cleanText().isEmpty();
    return box.text().isEmpty();
}

/// What the field says when its number changes, so that its editor hears of one that does not.
void announceNumber(QAbstractSpinBox &box)
{
    if (auto *const whole = qobject_cast<QSpinBox *>(&box))
        Q_EMIT whole->valueChanged(whole->value());
    else if (auto *const number = qobject_cast<QDoubleSpinBox *>(&box))
        Q_EMIT number->valueChanged(number->value());
}

/// Style sheets look at the property when a widget is polished.
void setMixedProperty(QWidget &widget, bool mixed)
{
    if (widget.property(kMixedProperty).toBool() == mixed)
        return;
    widget.setProperty(kMixedProperty, mixed);
    QList<QWidget *> widgets = widget.findChildren<QWidget *>();
    widgets.prepend(&widget);
    for (QWidget *const each : std::as_const(widgets)) {
        each->style()->unpolish(each);
        each->style()->polish(each);
    }
}

void markCheckBox(QCheckBox &box, bool mixed)
{
    const QSignalBlocker blocker(box);
    if (mixed) {
        box.setTristate(true);
        box.setCheckState(Qt::PartiallyChecked);
    } else if (box.isTristate()) {
        const bool checked = box.isChecked();
        box.setTristate(false);
        box.setChecked(checked);
    }
}

void uncheckAll(const QList<QRadioButton *> &buttons)
{
    for (QRadioButton *const button : buttons) {
        QButtonGroup *const group = button->group();
        const QSignalBlocker buttonBlocker(button);
        const QSignalBlocker groupBlocker(group);
        if (group)
            group->setExclusive(false);
        button->setChecked(false);
        if (group)
            group->setExclusive(true);
    }
}

void unchooseAll(QWidget &widget)
{
    uncheckAll(widget.findChildren<QRadioButton *>());
    if (auto *const box = controlIn<QComboBox>(widget)) {
        const QSignalBlocker blocker(box);
        box->setCurrentIndex(-1);
    }
    if (auto *const list = controlIn<QListWidget>(widget)) {
        const QSignalBlocker blocker(list);
        list->setCurrentRow(-1);
    }
}

QString placeholderOf(QWidget &widget)
{
    if (const auto *const line = controlIn<QLineEdit>(widget))
        return line->placeholderText();
    const auto *const text = controlIn<QPlainTextEdit>(widget);
    return text ? text->placeholderText() : QString();
}

void setPlaceholder(QWidget &widget, const QString &text)
{
    if (auto *const line = controlIn<QLineEdit>(widget))
        line->setPlaceholderText(text);
    else if (auto *const edit = controlIn<QPlainTextEdit>(widget))
        edit->setPlaceholderText(text);
}

bool isUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::FocusIn:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

} // namespace

SelectionMarks::SelectionMarks(PropertyEditorPanel *panel, const QVector<Property *> &properties)
    : m_panel(panel)
    , m_panelObject(panel)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SelectionMarks::markPending);
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *const editor : std::as_const(editors)) {
        Property *const property = editor ? editor->editedProperty() : nullptr;
        if (property && properties.contains(property) && !m_rows.contains(property))
            addRow(property, editor);
    }
    panel->installEventFilter(this);
}

SelectionMarks::~SelectionMarks()
{
    const QList<const Property *> properties = m_rows.keys();
    for (const Property *const property : properties) {
        Row &row = m_rows[property];
        if (!row.state.isMixed)
            continue;
        row.state = {};
        applyMarks(property);
    }
}

void SelectionMarks::setState(const Property *property, const MixedState &state)
{
    if (Row *const row = find(property))
        row->state = state;
}

void SelectionMarks::show(Property *property)
{
    if (Row *const row = find(property)) {
        for (Field &field : row->fields)
            field.isTouched = field.isHalfTyped = false; // what was typed is of no account now
    }
    showValue(property);
}

void SelectionMarks::showValue(Property *property)
{
    Row *const row = find(property);
    if (!row || !row->editor || !m_panel)
        return;
    const QPointer<SelectionMarks> self(this);
    const QPointer<PropertyEditor> editor = row->editor;
    row->isLate = false;
    const QVariant value = m_panel->value(property);
    if (!self || !editor)
        return;
    // A box that is told a state takes it for that of its two or three.
    if (Row *const current = find(property); current && !current->state.isMixed)
        applyMarks(property);
    editor->setValue(value);
    if (self)
        applyMarks(property);
}

void SelectionMarks::mark(Property *property)
{
    const Row *const row = find(property);
    if (!row)
        return;
    applyMarks(property);
    if (!hasStrayBlank(*row))
        return;
    const QPointer<SelectionMarks> self(this);
    showValue(property);
    Row *const current = self ? find(property) : nullptr;
    if (!current || !hasStrayBlank(*current))
        return;
    current->isLate = true; // an editor takes no value while it announces one
    markLater(property);
}

void SelectionMarks::markAll()
{
    const QPointer<SelectionMarks> self(this);
    const QList<const Property *> properties = m_rows.keys();
    for (const Property *const property : properties) {
        if (!self)
            return;
        applyMarks(property);
    }
}

void SelectionMarks::markLater(const Property *property)
{
    if (!m_rows.contains(property))
        return;
    m_pending.insert(property);
    if (!m_timer.isActive())
        m_timer.start(0);
}

void SelectionMarks::setUsable(const Property *property, bool usable)
{
    const Row *const row = find(property);
    if (QWidget *const widget = row ? widgetOf(*row) : nullptr)
        widget->setEnabled(usable);
}

void SelectionMarks::setWatchesMenu(bool watches)
{
    m_watchesMenu = watches;
}

void SelectionMarks::showRange(Property *property)
{
    const Row *const row = find(property);
    if (!row || !row->editor || !m_panel)
        return;
    const QPointer<PropertyEditor> editor = row->editor;
    m_panel->updateProperty(property);
    if (editor)
        renewRange(*editor);
    tellRange(m_panel);
}

void SelectionMarks::noteEdit(const Property *property, const QVariant &value)
{
    Row *const row = find(property);
    if (!row)
        return;
    row->awaitsEdit = false;
    row->arrivedValue = value;
    row->arrivedFields = std::exchange(row->heldFields, {});
}

QVariant SelectionMarks::shownValue(const Property *property) const
{
    const Row *const row = find(property);
    return row ? row->shownValue : QVariant();
}

QVector<bool> SelectionMarks::partsAtHand(const Property *property, int count) const
{
    QVector<bool> parts(count, false);
    const Row *const row = find(property);
    if (!row || row->fieldAtHand < 0)
        return parts;
    for (int i = 0; i < row->fields.size(); ++i) {
        const Field &field = row->fields.at(i);
        // A hidden field holds what the one that is seen does.
        const bool follows = row->fieldAtHand == 0 && field.box && field.box->isHidden();
        const bool isEdited = i == row->fieldAtHand || row->arrivedFields.contains(i);
        if (field.part < count && (isEdited || follows))
            parts[field.part] = true;
    }
    return parts;
}

bool SelectionMarks::isLate(const Property *property) const
{
    const Row *const row = find(property);
    return row && row->isLate;
}

bool SelectionMarks::isHalfTyped(const Property *property) const
{
    const Row *const row = find(property);
    return row && row->state.isMixed && row->fieldAtHand >= 0
           && row->fields.at(row->fieldAtHand).isHalfTyped;
}

bool SelectionMarks::isUntouchedText(const Property *property) const
{
    const Row *const row = find(property);
    QWidget *const widget = row ? widgetOf(*row) : nullptr;
    const auto *const line = widget ? controlIn<QLineEdit>(*widget) : nullptr;
    return line && !line->isModified();
}

bool SelectionMarks::takeDefault(const Property *property)
{
    Row *const row = find(property);
    // The menu closes before what was chosen is done. While it is open, edits from before arrive.
    const bool isChosen = m_menuProperty == property && !QApplication::activePopupWidget();
    if (!row || !(isChosen || row->awaitsDefault))
        return false;
    row->awaitsDefault = false;
    if (isChosen)
        m_menuProperty = nullptr;
    return true;
}

bool SelectionMarks::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_panelObject) {
        const bool opensMenu = event->type() == QEvent::ContextMenu && !m_isInMenu && m_watchesMenu;
        return opensMenu && openMenu(watched, static_cast<QContextMenuEvent *>(event));
    }
    const auto field = m_fieldOf.constFind(watched);
    if (field != m_fieldOf.constEnd() && isUserInput(event->type())) {
        if (Row *const row = find(field->first))
            row->fieldAtHand = field->second;
    }
    return false;
}

bool SelectionMarks::openMenu(QObject *panel, QContextMenuEvent *event)
{
    const QPointer<SelectionMarks> self(this);
    m_isInMenu = true;
    m_menuProperty = propertyAt(event->pos());
    Q_EMIT menuOpens();
    // The menu is modal: it is closed when the panel is done with the event.
    panel->event(event);
    if (self) {
        m_isInMenu = false;
        m_menuProperty = nullptr;
        Q_EMIT menuClosed();
    }
    return true;
}

/// The row that the panel opens its menu for, which compares geometries unmapped.
const Property *SelectionMarks::propertyAt(const QPoint &position) const
{
    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, QString());
    for (PropertyEditor *const editor : std::as_const(editors)) {
        const QWidget *const widget = editor ? editor->widget(nullptr) : nullptr;
        if (widget && widget->isVisibleTo(m_panel) && widget->geometry().contains(position))
            return editor->editedProperty();
    }
    return nullptr;
}

/// Comes after the panel has passed the edit on. What has not arrived by now is held back and arrives
/// with the next edits as one.
void SelectionMarks::editAnnounced(const Property *property)
{
    Row *const row = find(property);
    if (!row || !row->editor)
        return;
    row->awaitsDefault = m_menuProperty == property;
    const bool hasArrived = isSameValue(*property, row->editor->value(), row->arrivedValue);
    if (!hasArrived && row->fieldAtHand >= 0)
        row->heldFields.insert(row->fieldAtHand);
}

SelectionMarks::Row *SelectionMarks::find(const Property *property)
{
    const auto row = m_rows.find(property);
    return row == m_rows.end() ? nullptr : &row.value();
}

const SelectionMarks::Row *SelectionMarks::find(const Property *property) const
{
    const auto row = m_rows.constFind(property);
    return row == m_rows.constEnd() ? nullptr : &row.value();
}

QWidget *SelectionMarks::widgetOf(const Row &row) const
{
    return row.editor ? row.editor->widget(nullptr) : nullptr;
}

void SelectionMarks::addRow(Property *property, PropertyEditor *editor)
{
    Row row;
    row.editor = editor;
    QWidget *const widget = editor->widget(nullptr);
    if (!widget || !carriesValue(property->type))
        return;
    row.placeholder = placeholderOf(*widget);
    const QList<QAbstractSpinBox *> boxes = widget->findChildren<QAbstractSpinBox *>();
    for (int i = 0; i < boxes.size(); ++i)
        row.fields.append({boxes.at(i), partOfField(*property, i), false, false});
    m_rows.insert(property, row);
    connect(editor, &PropertyEditor::valueChanged, this,
            [this, property] { editAnnounced(property); });

    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    for (QWidget *const child : children) {
        m_fieldOf.insert(child, {property, -1});
        child->installEventFilter(this);
    }
    for (int i = 0; i < boxes.size(); ++i)
        watchField(property, i);
    if (typeTraits(property->type).kind == ValueKind::Boolean)
        watchBoolean(property, *widget);
}

void SelectionMarks::watchField(const Property *property, int field)
{
    QAbstractSpinBox *const box = m_rows[property].fields.at(field).box;
    auto *const line = box->findChild<QLineEdit *>();
    m_fieldOf.insert(box, {property, field});
    if (line)
        m_fieldOf.insert(line, {property, field});
    connect(box, &QAbstractSpinBox::editingFinished, this,
            [this, property, field] { fieldFinished(property, field); });
    if (!line)
        return;
    connect(line, &QLineEdit::textEdited, this, [this, property, field, box] {
        Row &row = m_rows[property];
        row.fields[field].isTouched = true;
        row.fields[field].isHalfTyped = !box->hasAcceptableInput();
        row.fieldAtHand = field;
        row.awaitsEdit = row.state.isMixed && box->hasAcceptableInput();
    });
    // The box was connected before and has announced the number by now, if it does at all.
    connect(line, &QLineEdit::textChanged, this, [this, property, box] {
        if (std::exchange(m_rows[property].awaitsEdit, false))
            announceNumber(*box);
    });
}

void SelectionMarks::watchBoolean(const Property *property, QWidget &widget)
{
    auto *const box = qobject_cast<QCheckBox *>(&widget);
    if (!box)
        return;
    connect(box, &QAbstractButton::pressed, this, [this, property] {
        Row &row = m_rows[property];
        row.awaitsEdit = row.state.isMixed;
    });
    connect(box, &QAbstractButton::clicked, this, [this, property, box] {
        if (std::exchange(m_rows[property].awaitsEdit, false))
            Q_EMIT box->toggled(box->isChecked());
    });
}

void SelectionMarks::fieldFinished(const Property *property, int field)
{
    Row &row = m_rows[property];
    row.fields[field].isTouched = false;
    row.fields[field].isHalfTyped = false;
    if (row.state.isMixed)
        markBlankFields(row);
}

void SelectionMarks::applyMarks(const Property *property)
{
    Row *const row = find(property);
    QWidget *const widget = row ? widgetOf(*row) : nullptr;
    if (!widget)
        return;
    const MixedState state = row->state;
    const ValueKind kind = typeTraits(property->type).kind;
    if (kind == ValueKind::Boolean && qobject_cast<QCheckBox *>(widget))
        markCheckBox(*qobject_cast<QCheckBox *>(widget), state.isMixed);
    const bool isChoice = kind == ValueKind::Choice || kind == ValueKind::Texture;
    if (state.isMixed && (isChoice || (kind == ValueKind::ImageFormat && state.isPartMixed(0))))
        unchooseAll(*widget);
    if (kind == ValueKind::Text)
        setPlaceholder(*widget, state.isMixed ? tr("Several values") : row->placeholder);
    markBlankFields(*row);
    if (state.isMixed)
        row->shownValue = row->editor->value();
    setMixedProperty(*widget, state.isMixed);
}

void SelectionMarks::markBlankFields(Row &row)
{
    for (const Field &field : std::as_const(row.fields)) {
        if (!field.box || !row.state.isPartMixed(field.part))
            continue;
        if (field.isTouched && field.box->hasFocus())
            continue; // the user is not done
        const QSignalBlocker blocker(field.box.data());
        field.box->clear();
    }
}

/// Whether a field is still blank though its number is everyone's now.
bool SelectionMarks::hasStrayBlank(const Row &row) const
{
    for (const Field &field : row.fields) {
        const bool isAtHand = field.isTouched && field.box && field.box->hasFocus();
        if (field.box && !isAtHand && !row.state.isPartMixed(field.part) && isBlank(*field.box))
            return true;
    }
    return false;
}

void SelectionMarks::markPending()
{
    const QPointer<SelectionMarks> self(this);
    const QSet<const Property *> pending = std::exchange(m_pending, {});
    for (const Property *const property : pending) {
        Row *const row = self ? find(property) : nullptr;
        if (!row)
            continue;
        if (row->isLate && row->editor)
            showValue(row->editor->editedProperty());
        else
            applyMarks(property);
    }
}

} // namespace Tessark::PropertyHost
