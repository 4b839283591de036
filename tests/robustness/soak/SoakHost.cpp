#include "SoakHost.h"

#include "support/TransformNumbers.h"

#include <core/ColorWheel.h>
#include <core/DisclosureButton.h>
#include <property/editors/TexturePropertyEditor.h>

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace Soak {

namespace {

bool isVector(const Property *property)
{
    return property->type == kPropertyTypeVec2 || property->type == kPropertyTypeVec3
           || property->type == kPropertyTypeVec4;
}

/// Whether its editor takes no value back while it announces what was typed. What its sliders make
/// is shown the same when it comes back; what folding makes is taken back, see folds().
bool ignoresEchoes(const Property *property)
{
    return property->type == kPropertyTypeFloat || property->type == kPropertyTypePercent
           || property->type == kPropertyTypeColor || property->type == kPropertyTypeTransform2D;
}

/// The vector with its first component in place of all others.
QVariant uniform(const QVariant &vector)
{
    const auto three = [](float x) { return QVector3D(x, x, x); };
    if (vector.userType() == QMetaType::QVector3D)
        return three(vector.value<QVector3D>().x());
    const float x = vector.value<QVector4D>().x();
    return QVector4D(three(x), x);
}

/// Whether user and host both set it, so that the store decides.
bool hasStoredValue(const Row &row)
{
    return !row.others.isEmpty();
}

} // namespace

void RunTable::started(const PropertyEditor *editor)
{
    m_editor = editor;
    m_changeSeen = false;
}

void RunTable::ended()
{
    m_editor = nullptr;
    m_changeSeen = false;
}

bool RunTable::continues(const PropertyEditor *editor) const
{
    return m_editor == editor && m_changeSeen;
}

void RunTable::changed(const PropertyEditor *editor)
{
    if (m_editor == editor)
        m_changeSeen = true;
    else
        ended();
}

SoakHost::SoakHost(const Rows &rows, Random &random)
    : m_rows(rows)
    , m_random(random)
{
    for (const Row &row : rows.all()) {
        Item item;
        item.row = &row;
        item.stored = row.initial;
        m_indexes.insert(row.property, int(m_items.size()));
        m_items.append(item);
    }
}

void SoakHost::watch(PropertyEditorPanel *panel)
{
    m_panel = panel;
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *editor : editors) {
        Item &item = itemOf(editor->editedProperty());
        item.editor = editor;
        item.shown = editor->value();
        connectTo(item);
    }
}

void SoakHost::connectTo(Item &item)
{
    PropertyEditor *const editor = item.editor;
    const Property *const property = item.row->property;
    connect(editor, &PropertyEditor::startInteractiveChange, this, [this, editor, property] {
        itemOf(property).isRunOpen = true;
        m_runs.started(editor);
    });
    connect(editor, &PropertyEditor::endInteractiveChange, this, [this, property] {
        itemOf(property).isRunOpen = false;
        m_runs.ended();
    });
    const bool holdsRows =
        property->type == kPropertyTypeBeginTabGroup || property->type == kPropertyTypeTab;
    QWidget *const widget = editor->widget(nullptr);
    if (!widget || holdsRows)
        return;
    if (property->type == kPropertyTypeTexture)
        item.list = qobject_cast<QListWidget *>(widget);
    else if (property->type == kPropertyTypeString)
        item.lineEdit = qobject_cast<QLineEdit *>(widget);
    else if (property->type == kPropertyTypeFilename)
        item.lineEdit = widget->findChild<QLineEdit *>();
    else
        watchRunControls(item);
    if (isVector(property))
        watchUniformToggle(item);
    else if (property->type == kPropertyTypeTransform2D)
        watchScaleToggle(item);
}

void SoakHost::watchRunControls(Item &item)
{
    const QWidget *const widget = item.editor->widget(nullptr);
    const auto controls = widget->findChildren<QWidget *>();
    for (QWidget *control : controls) {
        const bool isSlider =
            qobject_cast<QAbstractSlider *>(control) && !qobject_cast<QScrollBar *>(control);
        if (isSlider || qobject_cast<QAbstractSpinBox *>(control))
            item.runControls.append(control);
    }
    const auto *const wheel = widget->findChild<UI::ColorWheel *>();
    if (!wheel)
        return;
    const Property *const property = item.row->property;
    connect(wheel, &UI::ColorWheel::startDragSignal, this,
            [this, property] { itemOf(property).isWheelDragged = true; });
    connect(wheel, &UI::ColorWheel::stopDragSignal, this,
            [this, property] { itemOf(property).isWheelDragged = false; });
}

/// Unchecking it sets all components to the first, which no signal of the editor tells.
void SoakHost::watchUniformToggle(Item &item)
{
    const auto *const toggle = item.editor->widget(nullptr)->findChild<UI::DisclosureButton *>();
    if (!toggle)
        return;
    const Property *const property = item.row->property;
    connect(toggle, &UI::DisclosureButton::toggled, this, [this, property](bool separate) {
        Item &toggled = itemOf(property);
        if (!separate)
            toggled.shown = uniform(toggled.shown);
    });
}

void SoakHost::watchScaleToggle(Item &item)
{
    item.scaleToggle = item.editor->widget(nullptr)->findChild<UI::DisclosureButton *>();
    if (!item.scaleToggle)
        return;
    const Property *const property = item.row->property;
    connect(item.scaleToggle, &UI::DisclosureButton::toggled, this,
            [this, property](bool unfolded) {
                Item &toggled = itemOf(property);
                toggled.isUnfolded = unfolded;
                if (unfolded)
                    scaleUnfolded(toggled);
            });
}

/// Its last field, scale Y, counts again with what it held before scale X was edited alone, which no
/// signal of the editor tells. The others are as they were.
void SoakHost::scaleUnfolded(Item &item)
{
    const auto fields = item.editor->widget(nullptr)->findChildren<QDoubleSpinBox *>();
    TestSupport::Numbers numbers{};
    std::transform(fields.begin(), fields.end(), numbers.begin(),
                   [](const QDoubleSpinBox *field) { return field->value(); });
    const DoubleMatrix3x3 now = TestSupport::matrixOf(numbers);
    const auto before = item.shown.value<DoubleMatrix3x3>();
    const bool isOnlyScaleY = std::equal(now.constData(), now.constData() + 3, before.constData());
    expect(isOnlyScaleY, item, QStringLiteral("unfolded and changed more than scale Y"));
    item.shown = QVariant::fromValue(now);
}

void SoakHost::lookAtToggles()
{
    for (Item &item : m_items) {
        if (item.scaleToggle)
            item.isUnfolded = item.scaleToggle->isChecked();
    }
}

/// Whether the user folds the scale now. While the editor announces that it shows what the host
/// gives it, and so rounds what the arrows of its fields made: they add their step as it is.
bool SoakHost::folds(const Item &item)
{
    return item.isUnfolded && !item.scaleToggle->isChecked();
}

void SoakHost::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    Item &item = itemOf(property);
    ++m_changes;
    if (flags == ContinuedChange)
        ++m_continuedChanges;
    expect(m_refreshes == 0, item, QStringLiteral("announced a value of the host"));
    item.stored = value;
    if (item.list && !value.isValid())
        item.stored = item.shown;
    item.shown = item.stored;
    // A vector's hidden components and sliders follow only when the value comes back.
    const QScopedValueRollback<const Property *> announcing(m_announcing,
                                                            folds(item) ? nullptr : property);
    if (m_panel && (isVector(property) || happens(m_random, 50)))
        refresh();
}

QVariant SoakHost::value(Property *property)
{
    Item &item = itemOf(property);
    if (item.editor && !keepsTyping(item))
        item.shown = item.row->shown(item.stored, item.shown);
    return item.stored;
}

void SoakHost::aboutToChange(const Property *property, ChangeFlags flags)
{
    Item &item = itemOf(property);
    const bool continued = m_runs.continues(item.editor);
    expect(flags == (continued ? ContinuedChange : NewChange), item,
           QStringLiteral("told a change with flags %1").arg(int(flags)));
}

void SoakHost::changed(const Property *property)
{
    m_runs.changed(itemOf(property).editor);
}

void SoakHost::refresh()
{
    ++m_refreshes;
    m_panel->updateUI();
    --m_refreshes;
    lookAtToggles(); // which a value moves silently
}

void SoakHost::setSomeValue()
{
    Item &item = m_items[below(m_random, int(m_items.size()))];
    if (!hasStoredValue(*item.row))
        return;
    item.stored = item.row->others.at(below(m_random, int(item.row->others.size())));
    refresh();
}

void SoakHost::describeSomethingAnew()
{
    const Item &item = m_items.at(below(m_random, int(m_items.size())));
    Property &property = *item.row->property;
    property.setHint(kPropertyHintEnabled, happens(m_random, 80));
    if (property.type == kPropertyTypeInteger)
        property.setRange(0, 50 + below(m_random, 2) * 50, 100 + below(m_random, 100));
    m_panel->updateProperty(&property);
    // What the editor has changed by itself just now was told to nobody.
    refresh();
}

void SoakHost::reset()
{
    for (Item &item : m_items) {
        if (hasStoredValue(*item.row))
            item.stored = item.row->initial;
        item.row->property->setHint(kPropertyHintEnabled, true);
        m_panel->updateProperty(item.row->property);
    }
    refresh();
}

void SoakHost::check(bool runsToo)
{
    ++m_checks;
    for (Item &item : m_items) {
        if (!isPending(item))
            checkValue(item);
        if (runsToo)
            checkRun(item);
    }
}

void SoakHost::checkValue(const Item &item)
{
    const QVariant shown = shownBy(item);
    if (!isSame(shown, item.shown)) {
        expect(false, item,
               QStringLiteral("shows %1 and not %2 when the host has %3")
                   .arg(inWords(shown), inWords(item.shown), inWords(item.stored)));
    }
}

/// No run outlasts what the user does with its controls, and what he begins opens one. While he does
/// two things at once the end of either ends the run, so that there may be none.
void SoakHost::checkRun(Item &item)
{
    const int sources = openSourcesOf(item);
    const bool began = item.sources == 0 && sources == 1;
    if (sources == 0)
        expect(!item.isRunOpen, item, QStringLiteral("has an open run and nothing that is edited"));
    if (began)
        expect(item.isRunOpen, item, QStringLiteral("is edited without a run"));
    item.sources = sources;
}

QVector<PropertyEditor *> SoakHost::editors() const
{
    QVector<PropertyEditor *> result;
    for (const Item &item : m_items)
        result.append(item.editor);
    return result;
}

SoakHost::Item &SoakHost::itemOf(const Property *property)
{
    return m_items[m_indexes.value(property)];
}

/// Whether the editor leaves its entry field alone when the host gives it a value now.
bool SoakHost::keepsTyping(const Item &item) const
{
    if (m_announcing == item.row->property && ignoresEchoes(m_announcing))
        return true;
    if (item.row->property->type != kPropertyTypeFloat)
        return false;
    for (const QWidget *control : item.runControls) {
        if (qobject_cast<const QAbstractSpinBox *>(control) && control->hasFocus())
            return true;
    }
    return false;
}

/// Whether the user has typed something that the host is to learn later.
bool SoakHost::isPending(const Item &item) const
{
    if (item.lineEdit)
        return item.lineEdit->window()->focusWidget() == item.lineEdit;
    if (const auto *text = qobject_cast<QPlainTextEdit *>(item.editor->widget(nullptr)))
        return text->document()->isModified();
    return false;
}

QVariant SoakHost::shownBy(const Item &item) const
{
    if (!item.list)
        return item.editor->value();
    TextureChoice choice; // a value of the host moves the row only
    if (const QListWidgetItem *current = item.list->currentItem())
        choice.name = current->text();
    return QVariant::fromValue(choice);
}

int SoakHost::openSourcesOf(const Item &item) const
{
    int sources = item.isWheelDragged ? 1 : 0;
    for (const QWidget *control : item.runControls) {
        const auto *const slider = qobject_cast<const QAbstractSlider *>(control);
        if (slider ? slider->isSliderDown() : control->hasFocus())
            ++sources;
    }
    return sources;
}

void SoakHost::expect(bool condition, const Item &item, const QString &text)
{
    if (!condition)
        m_faults.append(item.row->property->name + QLatin1Char(' ') + text);
}

SoakPanel::SoakPanel(const Rows &rows, SoakHost *host)
    : PropertyEditorPanel(rows.list(), host, nullptr)
    , m_host(host)
{
    QVector<PropertyEditor *> textureEditors;
    getEditors(textureEditors, kPropertyTypeTexture);
    QVector<TextureChoice> choices;
    for (const QString &name : textureNames())
        choices.append({name, QImage(), QIcon()});
    for (PropertyEditor *editor : std::as_const(textureEditors))
        qobject_cast<TexturePropertyEditor *>(editor)->setTextures(choices);
}

void SoakPanel::setValue(Property *property, const QVariant &value,
                         IPropertyEditorDelegate::ChangeFlags flags)
{
    m_host->aboutToChange(property, flags);
    PropertyEditorPanel::setValue(property, value, flags);
    m_host->changed(property);
}

} // namespace Soak
