#include "testing/RowParts_p.h"

#include "testing/PanelMap_p.h"
#include "testing/ValueText_p.h"

#include <core/DisclosureButton.h>
#include <core/LogSlider.h>
#include <core/Slider.h>
#include <property/Property.h>
#include <property/PropertyEditor.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyTest {

using namespace PropertyUI;

namespace {

constexpr double kThousandths = 1000;
constexpr double kPercentUnits = 100000;
constexpr double kTie = 1 + 1e-6; // half a digit, with the rounding of doubles

const QString kExpanded = QStringLiteral("expanded");
const QString kConstrain = QStringLiteral("constrain");
const QString kBrowse = QStringLiteral("browse");
const QString kAlpha = QStringLiteral("alpha"); // there is no control for it

/// The control itself, or the first such control in it.
template <typename Control>
Control *controlIn(QWidget *field)
{
    if (!field)
        return nullptr;
    auto *const whole = qobject_cast<Control *>(field);
    return whole ? whole : field->findChild<Control *>();
}

template <typename Control>
QList<Control *> controlsIn(QWidget *field)
{
    if (!field)
        return {};
    if (auto *const whole = qobject_cast<Control *>(field))
        return {whole};
    return field->findChildren<Control *>();
}

QStringList transformNames(const Property &property)
{
    const auto isOn = [&property](const QString &hint) { return property.hint(hint).toBool(); };
    QStringList names;
    if (!isOn(kPropertyHintXfrmNoPosition))
        names << QStringLiteral("x") << QStringLiteral("y");
    if (!isOn(kPropertyHintXfrmNoRotation))
        names << QStringLiteral("rotation");
    if (isOn(kPropertyHintXfrmNoScale))
        return names;
    if (isOn(kPropertyHintXfrmUniformScale))
        return names << QStringLiteral("scale");
    return names << QStringLiteral("scaleX") << QStringLiteral("scaleY");
}

/// The numbers of a row, in the order of its fields; an empty name for one without parts.
QStringList numberNames(const Property &property)
{
    QStringList axes = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"),
                        QStringLiteral("w")};
    const QString &type = property.type;
    if (type == kPropertyTypeVec2)
        return axes.mid(0, 2);
    if (type == kPropertyTypeVec3)
        return axes.mid(0, 3);
    if (type == kPropertyTypeVec4)
        return axes;
    if (type == kPropertyTypeColor)
        return {QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")};
    if (type == kPropertyTypeSize || type == kPropertyTypeRenderSize)
        return {QStringLiteral("width"), QStringLiteral("height")};
    if (type == kPropertyTypeImageFormat)
        return {QStringLiteral("quality")};
    if (type == kPropertyTypeTransform2D)
        return transformNames(property);
    return {QString()};
}

/// How many units of the slider there are for 1 of the value.
double unitsPerNumber(const Property &property)
{
    const QString &type = property.type;
    if (type == kPropertyTypePercent)
        return kPercentUnits;
    if (type == kPropertyTypeFloat) {
        const QVariant scale = property.hint(kPropertyHintDisplayScale);
        return kThousandths * (scale.isNull() ? 1 : scale.toDouble());
    }
    const bool isInThousandths = type == kPropertyTypeVec2 || type == kPropertyTypeVec3
                                 || type == kPropertyTypeVec4 || type == kPropertyTypeTransform2D;
    return isInThousandths ? kThousandths : 1;
}

QVector<NumberPart> numbersIn(QWidget *field, const Property &property)
{
    const QStringList names = numberNames(property);
    const auto fields = controlsIn<QAbstractSpinBox>(field);
    const auto sliders = controlsIn<QSlider>(field);
    QVector<NumberPart> numbers;
    for (int i = 0; i < names.size() && i < std::max(fields.size(), sliders.size()); ++i)
        numbers.append({names.at(i), fields.value(i), sliders.value(i), unitsPerNumber(property)});
    return numbers;
}

QVariant fieldNumber(const QAbstractSpinBox *field)
{
    if (const auto *const box = qobject_cast<const QDoubleSpinBox *>(field))
        return box->value();
    if (const auto *const box = qobject_cast<const QSpinBox *>(field))
        return box->value();
    return QVariant();
}

/// The one that is checked, else the first.
QRadioButton *currentButton(QWidget *field)
{
    const auto buttons = field->findChildren<QRadioButton *>();
    const auto checked =
        std::find_if(buttons.begin(), buttons.end(),
                     [](const QRadioButton *button) { return button->isChecked(); });
    return checked == buttons.end() ? buttons.value(0) : *checked;
}

QString textShownBy(QWidget *control)
{
    if (const auto *const field = qobject_cast<QAbstractSpinBox *>(control))
        return field->text();
    if (const auto *const field = qobject_cast<QLineEdit *>(control))
        return field->text();
    if (const auto *const field = qobject_cast<QPlainTextEdit *>(control))
        return field->toPlainText();
    if (const auto *const box = qobject_cast<QComboBox *>(control))
        return box->currentText();
    if (const auto *const list = qobject_cast<QListWidget *>(control))
        return list->currentItem() ? list->currentItem()->text() : QString();
    if (const auto *const button = qobject_cast<QRadioButton *>(control))
        return button->isChecked() ? button->text() : QString();
    if (const auto *const button = qobject_cast<QAbstractButton *>(control))
        return button->text();
    if (const auto *const label = qobject_cast<QLabel *>(control))
        return label->text();
    return QString();
}

} // namespace

double NumberPart::positionOf(double number) const
{
    if (const auto *const logarithmic = qobject_cast<UI::LogSlider *>(slider))
        return logarithmic->positionOf(number * unitsPerNumber / kThousandths);
    if (const auto *const real = qobject_cast<UI::Slider *>(slider))
        return real->positionOf(number);
    return number * unitsPerNumber;
}

double NumberPart::numberAt(int position) const
{
    if (const auto *const logarithmic = qobject_cast<UI::LogSlider *>(slider))
        return logarithmic->realValueAt(position) * kThousandths / unitsPerNumber;
    if (const auto *const real = qobject_cast<UI::Slider *>(slider))
        return real->realValueAt(position);
    return position / unitsPerNumber;
}

bool NumberPart::isShownAs(int position, double number) const
{
    const double reached = numberAt(position);
    const auto *const box = qobject_cast<QDoubleSpinBox *>(field);
    if (!box)
        return isSame(reached, number);
    // Up to half of the last digit that the field shows, in units of the value.
    double shownPerNumber = std::max(1.0, unitsPerNumber / kThousandths);
    if (qobject_cast<UI::Slider *>(slider))
        shownPerNumber = box->maximum(); // of a channel: 1 or 255
    const double half = 0.5 * std::pow(10.0, -box->decimals()) / shownPerNumber;
    return std::fabs(reached - number) <= half * kTie;
}

RowParts::RowParts(const PanelRow &row)
    : m_row(row)
{
    if (row.editor)
        m_numbers = numbersIn(row.field, *row.editor->editedProperty());
}

QStringList RowParts::names() const
{
    QStringList names;
    for (const NumberPart &number : m_numbers) {
        if (!number.name.isEmpty())
            names.append(number.name);
    }
    for (const QString &name : {kExpanded, kConstrain, kBrowse}) {
        if (named(name))
            names.append(name);
    }
    return names;
}

const NumberPart *RowParts::number(const QString &name) const
{
    const auto found =
        std::find_if(m_numbers.begin(), m_numbers.end(),
                     [&name](const NumberPart &number) { return number.name == name; });
    return found == m_numbers.end() ? nullptr : &*found;
}

QWidget *RowParts::textField(const QString &name) const
{
    if (const NumberPart *const part = number(name))
        return part->field;
    QWidget *const place = name.isEmpty() ? m_row.field.data() : named(name);
    if (!m_numbers.isEmpty() && name.isEmpty())
        return nullptr; // several fields: which one?
    if (QWidget *const line = controlIn<QLineEdit>(place))
        return line;
    return controlIn<QPlainTextEdit>(place);
}

QAbstractButton *RowParts::button(const QString &name) const
{
    if (!name.isEmpty())
        return qobject_cast<QAbstractButton *>(named(name));
    return qobject_cast<QAbstractButton *>(m_row.field);
}

QWidget *RowParts::control(const QString &name) const
{
    if (const NumberPart *const part = number(name)) {
        if (part->field)
            return part->field;
        return part->slider;
    }
    if (!name.isEmpty())
        return named(name);
    if (QWidget *const field = textField(QString()))
        return field;
    if (QWidget *const box = controlIn<QComboBox>(m_row.field))
        return box;
    QWidget *const button = m_row.field ? currentButton(m_row.field) : nullptr;
    return button ? button : m_row.field.data();
}

QString RowParts::text(const QString &name) const
{
    return textShownBy(control(name));
}

QVariant RowParts::value(const QString &name) const
{
    if (!m_row.editor)
        return QVariant();
    if (name.isEmpty())
        return m_row.editor->value();
    if (const auto *const box = qobject_cast<QAbstractButton *>(named(name)))
        return box->isChecked();
    const bool isColor =
        m_row.type == kPropertyTypeColor; // its fields follow the host's answer only
    if (isColor && name == kAlpha)
        return numbersOf(m_row.editor->value()).value(3);
    const NumberPart *const part = number(name);
    if (!part)
        return QVariant();
    if (!isColor && part->field)
        return fieldNumber(part->field);
    return numbersOf(m_row.editor->value()).value(int(part - m_numbers.constData()));
}

/// A part that is no number: by its role, or by its object name in rows of hosts.
QWidget *RowParts::named(const QString &name) const
{
    if (!m_row.field)
        return nullptr;
    if (name == kExpanded)
        return m_row.field->findChild<UI::DisclosureButton *>();
    const bool isSize = m_row.type == kPropertyTypeSize || m_row.type == kPropertyTypeRenderSize;
    if (name == kConstrain && isSize)
        return m_row.field->findChild<QCheckBox *>();
    if (name == kBrowse && m_row.type == kPropertyTypeFilename)
        return m_row.field->findChild<QToolButton *>();
    return m_row.field->findChild<QWidget *>(name);
}

} // namespace Tessark::PropertyTest
