#include "property/SpokenRow_p.h"

#include "core/DisclosureButton.h"
#include "core/FilenameField.h"
#include "core/Slider.h"
#include "property/PropertyEditor.h"
#include "property/PropertyEditorPanel.h"
#include "property/SpokenText_p.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QPixmap>
#include <QSpinBox>
#include <QStringList>
#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessark::PropertyUI {

namespace {

constexpr double kUnbounded = 1e15; // bounds from here on are no news to anyone
constexpr int kSpokenDigits = 12;

/// The labels before the fields of a layout. A widget that is a row itself labels nothing.
class RowLabels
{
public:
    explicit RowLabels(const RowWidgets &rows)
        : m_rows(rows)
    {
    }

    /// Null where the row spans both columns.
    const QLabel *of(const QWidget &field)
    {
        const QWidget *const parent = field.parentWidget();
        const QLayout *const layout = parent ? parent->layout() : nullptr;
        if (layout && !m_read.contains(layout))
            read(*layout);
        return m_labels.value(&field);
    }

private:
    void read(const QLayout &layout)
    {
        m_read.insert(&layout);
        const QWidget *before = nullptr;
        for (int i = 0; i < layout.count(); ++i) {
            const QWidget *const widget = layout.itemAt(i)->widget();
            if (!m_rows.contains(before))
                m_labels.insert(widget, qobject_cast<const QLabel *>(before));
            before = widget;
        }
    }

    const RowWidgets &m_rows;
    QSet<const QLayout *> m_read;
    QHash<const QWidget *, const QLabel *> m_labels;
};

/// Follows the markers of the list.
class Position
{
public:
    QString text() const { return joinedParts(m_titles); }

    /// Goes past the row.
    void pass(const SpokenRow &row)
    {
        const QString &type = row.editor->editedProperty()->type;
        if (type == kPropertyTypeBeginGroup)
            m_titles.append(row.label);
        else if (type == kPropertyTypeEndGroup)
            leaveGroup();
        else if (type == kPropertyTypeBeginTabGroup)
            m_tabGroups.append(int(m_titles.size()));
        else if (m_tabGroups.isEmpty())
            return;
        else if (type == kPropertyTypeTab)
            m_titles = m_titles.mid(0, m_tabGroups.last()) << row.label;
        else if (type == kPropertyTypeEndTabGroup)
            m_titles = m_titles.mid(0, m_tabGroups.takeLast());
    }

private:
    /// Not out of a page: the groups on it end with it.
    void leaveGroup()
    {
        const int kept = m_tabGroups.isEmpty() ? 0 : m_tabGroups.last() + 1;
        if (m_titles.size() > kept)
            m_titles.removeLast();
    }

    QStringList m_titles;
    QVector<int> m_tabGroups; // how many titles there are around each
};

/// The title of the page, or an empty text where the widget is none.
QString tabTitle(QWidget *widget)
{
    QWidget *const stack = widget->parentWidget();
    const auto *const tabs =
        qobject_cast<const QTabWidget *>(stack ? stack->parentWidget() : nullptr);
    return tabs ? withoutMnemonic(tabs->tabText(tabs->indexOf(widget))).simplified() : QString();
}

/// What is shown of the row, or an empty text.
QString shownLabel(const SpokenRow &row, RowLabels &labels)
{
    if (!row.widget)
        return QString();
    if (const QLabel *const label = labels.of(*row.widget))
        return spokenText(*label);
    if (const auto *const button = qobject_cast<const QAbstractButton *>(row.widget))
        return spokenText(*button);
    return tabTitle(row.widget);
}

QString labelOf(const SpokenRow &row, RowLabels &labels)
{
    const Property &property = *row.editor->editedProperty();
    const QStringList texts = {shownLabel(row, labels), spokenText(property.label), property.name};
    const auto found = std::find_if(texts.cbegin(), texts.cend(),
                                    [](const QString &text) { return !text.isEmpty(); });
    return found == texts.cend() ? QString() : *found;
}

bool isPicture(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    return label && !label->pixmap().isNull();
}

/// Whether the widget takes the focus itself rather than for one that it is a part of.
bool isFocusable(const QWidget &widget)
{
    const QWidget *const proxy = widget.focusProxy();
    return widget.focusPolicy() != Qt::NoFocus && !(proxy && proxy->isAncestorOf(&widget));
}

void collectControls(QWidget *widget, const RowWidgets &otherRows, QVector<QWidget *> &controls)
{
    if (isFocusable(*widget) || isPicture(*widget))
        controls.append(widget);
    if (const auto *const comboBox = qobject_cast<const QComboBox *>(widget))
        controls.append(comboBox->view()); // its first child to assistive technology
    for (QObject *child : widget->children()) {
        auto *const part = qobject_cast<QWidget *>(child);
        if (part && !part->isWindow() && !otherRows.contains(part))
            collectControls(part, otherRows, controls);
    }
}

QString unitOf(const QWidget *control)
{
    if (const auto *const spinBox = qobject_cast<const QDoubleSpinBox *>(control))
        return spinBox->suffix();
    if (const auto *const spinBox = qobject_cast<const QSpinBox *>(control))
        return spinBox->suffix();
    return QString();
}

/// The bounds that the control itself tells, with the unit, or an empty text.
QString boundsOf(QWidget *control, const QString &unit)
{
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(control);
    QAccessibleValueInterface *const number = accessible ? accessible->valueInterface() : nullptr;
    if (!number)
        return QString();
    const double minimum = number->minimumValue().toDouble();
    const double maximum = number->maximumValue().toDouble();
    if (std::fabs(minimum) >= kUnbounded || std::fabs(maximum) >= kUnbounded)
        return QString();
    QLocale locale = control->locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString bounds = PropertyEditorPanel::tr("%1 to %2")
                               .arg(locale.toString(minimum, 'g', kSpokenDigits),
                                    locale.toString(maximum, 'g', kSpokenDigits));
    return (bounds + unit).simplified();
}

/// Whether the kit gives such a control a name, which is that of its part of the row.
bool isNamedByKit(const QWidget &control)
{
    return qobject_cast<const UI::DisclosureButton *>(&control)
           || qobject_cast<const UI::Slider *>(&control)
           || qobject_cast<const UI::FilenameField *>(control.parentWidget());
}

/// Names the controls of one row.
class RowNamer
{
public:
    RowNamer(const SpokenRow &row, const QVector<QWidget *> &controls)
        : m_row(row)
        , m_controls(controls)
    {
        for (const QWidget *control : m_controls) {
            const QString part = partOf(control);
            m_parts.append(part);
            m_names.append(joinedParts({m_row.label, part}));
            if (!unitOf(control).isEmpty())
                m_units.insert(part, unitOf(control));
        }
        tellSlidersApart();
        tellOthersApart();
    }

    SpokenControl spoken(int index) const
    {
        QWidget *const control = m_controls.at(index);
        const QString unit = m_units.value(m_parts.at(index));
        SpokenControl result;
        result.control = control;
        if (isNamedByKit(*control))
            result.ownName = m_parts.at(index);
        result.name = m_names.at(index);
        // Qt says the text, and goes on doing so when a host changes it.
        const auto *const button = qobject_cast<const QAbstractButton *>(control);
        if (button && spokenText(*button) == result.name)
            result.name.clear();
        result.description =
            joinedParts({boundsOf(control, unit), m_row.position, spokenText(control->toolTip())});
        return result;
    }

private:
    QString partOf(const QWidget *control) const
    {
        const bool isPopup = control->window() != m_row.widget->window();
        return isPopup ? PropertyEditorPanel::tr("choices") : m_row.editor->controlName(control);
    }

    bool isAmbiguous(int index) const { return m_names.count(m_names.at(index)) > 1; }

    void tellSlidersApart()
    {
        QVector<int> sliders;
        for (int i = 0; i < m_names.size(); ++i) {
            if (isAmbiguous(i) && qobject_cast<const QAbstractSlider *>(m_controls.at(i)))
                sliders.append(i);
        }
        for (const int i : sliders)
            m_names[i] = joinedParts({m_names.at(i), PropertyEditorPanel::tr("slider")});
    }

    void tellOthersApart()
    {
        for (int i = int(m_names.size()) - 1; i > 0; --i) {
            if (isAmbiguous(i))
                m_names[i] = joinedParts({m_names.at(i), QString::number(i + 1)});
        }
    }

    const SpokenRow &m_row;
    const QVector<QWidget *> &m_controls;
    QStringList m_parts;
    QStringList m_names;
    QHash<QString, QString> m_units; // of the parts
};

/// Those of all editors, without any text yet.
QVector<SpokenRow> silentRows(const PropertyEditorPanel &panel)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    QVector<SpokenRow> rows;
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (editor)
            rows.append({editor, editor->widget(nullptr), QString(), QString()});
    }
    return rows;
}

} // namespace

QVector<SpokenRow> spokenRows(const PropertyEditorPanel &panel)
{
    QVector<SpokenRow> rows = silentRows(panel);
    const RowWidgets widgets = widgetsOf(rows);
    RowLabels labels(widgets);
    Position position;
    for (SpokenRow &row : rows) {
        row.label = labelOf(row, labels);
        row.position = position.text();
        position.pass(row);
    }
    return rows;
}

RowWidgets widgetsOf(const QVector<SpokenRow> &rows)
{
    RowWidgets widgets;
    for (const SpokenRow &row : rows) {
        if (row.widget)
            widgets.insert(row.widget);
    }
    return widgets;
}

QVector<SpokenControl> spokenControls(const SpokenRow &row, const RowWidgets &rowWidgets)
{
    QVector<QWidget *> controls;
    if (row.widget)
        collectControls(row.widget, rowWidgets, controls);
    const RowNamer namer(row, controls);
    QVector<SpokenControl> result;
    for (int i = 0; i < controls.size(); ++i)
        result.append(namer.spoken(i));
    return result;
}

} // namespace Tessark::PropertyUI
