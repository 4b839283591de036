#include "property/editors/Transform2DPropertyEditor.h"

#include "core/DisclosureButton.h"
#include "property/EditorHelpers_p.h"
#include "property/SpokenText_p.h"
#include "property/ThousandthsSlider_p.h"
#include "property/Transform2D_p.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>

namespace Tessark::PropertyUI {

namespace {

/// Lets the matrix be found as "QMatrix3x3". That is an alias, and Qt's float matrix has the same name:
/// code tells the type by its C++ name. Qt 5 cannot have both names in one process, so the alias is
/// not registered before an editor needs it, nor where the name is taken.
void registerMatrixName()
{
    static const bool s_registered = [] {
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        if (QMetaType::type("QMatrix3x3") == QMetaType::UnknownType)
            qRegisterMetaType<DoubleMatrix3x3>("QMatrix3x3");
        QT_WARNING_POP
        return true;
    }();
    Q_UNUSED(s_registered);
}

/// Any type but text and the matrix itself gives the identity.
DoubleMatrix3x3 toMatrix(const QVariant &value)
{
    registerMatrixName();
    if (value.userType() == QMetaType::QString)
        return QMatrix3x3_fromString(value.toString());
    return value.value<DoubleMatrix3x3>();
}

int positionOf(double number)
{
    return sliderPosition(number * kSliderUnitsPerUnit);
}

void store(double number, double *target)
{
    if (target)
        *target = number;
}

} // namespace

struct Transform2DPropertyEditor::RowKind
{
    double minimum;
    double maximum;
    double start;
    int decimals;
    int singleStep; // of the slider, as pageStep
    int pageStep;
    const char16_t *suffix;
};

PropertyEditor *Transform2DPropertyEditor::Factory(Property *property)
{
    return new Transform2DPropertyEditor(property);
}

void Transform2DPropertyEditor::XfrmToMatrix(double offsetX, double offsetY, double rotation,
                                             double scaleX, double scaleY,
                                             QGenericMatrix<3, 3, double> &matrix)
{
    matrix = matrixOf({offsetX, offsetY, rotation, scaleX, scaleY});
}

void Transform2DPropertyEditor::MatrixToXfrm(QGenericMatrix<3, 3, double> matrix, double *offsetX,
                                             double *offsetY, double *rotation, double *scaleX,
                                             double *scaleY)
{
    const Transform2D transform = transformOf(matrix);
    store(transform.offsetX, offsetX);
    store(transform.offsetY, offsetY);
    store(transform.rotation, rotation);
    store(transform.scaleX, scaleX);
    store(transform.scaleY, scaleY);
}

void Transform2DPropertyEditor::MatrixCalculateRotation(double angle, int axis,
                                                        QGenericMatrix<3, 3, double> &matrix)
{
    matrix = axisRotation(angle, axis);
}

Transform2DPropertyEditor::Transform2DPropertyEditor(Property *property)
    : PropertyEditor(property)
{
    property->setHint(kPropertyHintFullWidth, true);
}

Transform2DPropertyEditor::~Transform2DPropertyEditor() = default;

void Transform2DPropertyEditor::setValue(const QVariant &value)
{
    if (m_updating)
        return;
    const Transform2D transform = transformOf(toMatrix(value));
    if (m_showPosition) {
        showNumber(0, transform.offsetX);
        showNumber(1, transform.offsetY);
    }
    if (m_showRotation)
        showNumber(rotationRow(), transform.rotation);
    if (m_showScale)
        showNumber(scaleXRow(), transform.scaleX);
    if (m_showScale && !m_uniformScale)
        showNumber(scaleYRow(), transform.scaleY);
    // Unequal scales unfold the row; an unfolded row stays so.
    if (!isScaleExpanded())
        setScaleExpanded(transform.scaleX != transform.scaleY);
}

QVariant Transform2DPropertyEditor::value() const
{
    registerMatrixName();
    Transform2D transform;
    if (m_showPosition) {
        transform.offsetX = numberIn(0, transform.offsetX);
        transform.offsetY = numberIn(1, transform.offsetY);
    }
    if (m_showRotation)
        transform.rotation = numberIn(rotationRow(), transform.rotation);
    if (m_showScale) {
        const bool hasScaleY = !m_uniformScale && isScaleExpanded();
        transform.scaleX = numberIn(scaleXRow(), transform.scaleX);
        transform.scaleY = numberIn(hasScaleY ? scaleYRow() : scaleXRow(), transform.scaleY);
    }
    return QVariant::fromValue(matrixOf(transform));
}

QWidget *Transform2DPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        readHints();
        makeRows();
        m_widget = makeContainer();
        setScaleExpanded(false);
    }
    return m_widget;
}

QString Transform2DPropertyEditor::controlName(const QWidget *control) const
{
    for (std::size_t row = 0; row < m_rowCount; ++row) {
        if (control == m_spinBoxes[row] || control == m_sliders[row])
            return rowName(row);
    }
    return control == m_disclosureButton ? UI::DisclosureButton::tr("Expand")
                                         : PropertyEditor::controlName(control);
}

bool Transform2DPropertyEditor::isScaleExpanded() const
{
    return !m_disclosureButton || m_disclosureButton->isChecked();
}

void Transform2DPropertyEditor::setScaleExpanded(bool expanded)
{
    if (!hasCollapsibleScale())
        return;
    const QPointer<Transform2DPropertyEditor> self(this);
    if (!showScaleY(expanded))
        return;
    const QPointer<QDoubleSpinBox> scaleY(m_spinBoxes[scaleYRow()]);
    const QPointer<UI::DisclosureButton> button(m_disclosureButton);
    if (!expanded && scaleY->value() != numberIn(scaleXRow(), scaleY->value())) {
        copyScaleXToY();
        Q_EMIT valueChanged();
    }
    // A slot may have unfolded the row again; then this call is out of date.
    if (self && button && scaleY && scaleY->isHidden() != expanded
        && button->isChecked() != expanded)
        setQuietly(button.data(), &UI::DisclosureButton::setChecked, expanded);
}

void Transform2DPropertyEditor::spinBoxChanged(double)
{
    whileFlagged(this, m_updating, [this] {
        for (std::size_t row = 0; row < m_rowCount; ++row) {
            if (m_spinBoxes[row])
                setQuietly(m_sliders[row], &QSlider::setValue,
                           positionOf(m_spinBoxes[row]->value()));
        }
        Q_EMIT valueChanged();
    });
}

// All rows and not only the one that moved, on purpose: typed digits that no slider can hold go
// with the first move of any of them.
void Transform2DPropertyEditor::sliderChanged(int)
{
    whileFlagged(this, m_updating, [this] {
        for (std::size_t row = 0; row < m_rowCount; ++row) {
            if (m_sliders[row])
                showQuietly(m_spinBoxes[row],
                            m_sliders[row]->value() / double(kSliderUnitsPerUnit));
        }
        Q_EMIT valueChanged();
    });
}

void Transform2DPropertyEditor::readHints()
{
    m_showRotation = !hintOr(*m_property, kPropertyHintXfrmNoRotation, false);
    m_showPosition = !hintOr(*m_property, kPropertyHintXfrmNoPosition, false);
    m_showScale = !hintOr(*m_property, kPropertyHintXfrmNoScale, false);
    m_uniformScale = hintOr(*m_property, kPropertyHintXfrmUniformScale, false);
    m_collapsibleScale = hintOr(*m_property, kPropertyHintXfrmCollapsibleScale, false);
}

void Transform2DPropertyEditor::makeRows()
{
    constexpr RowKind kOffset{-1.0, 1.0, 0.0, 4, 2, 20, u""};
    constexpr RowKind kRotation{-180.0, 180.0, 0.0, 2, 360, 3600, u" \u00B0"};
    constexpr RowKind kScale{0.0001, 5.0, 1.0, 4, 10, 100, u""};
    if (m_showPosition) {
        appendRow(tr("Offset X:"), kOffset);
        appendRow(tr("Y:"), kOffset);
    }
    if (m_showRotation)
        appendRow(tr("Rotation:"), kRotation);
    if (m_showScale)
        appendRow(m_uniformScale ? tr("Scale:") : tr("Scale X:"), kScale);
    if (m_showScale && !m_uniformScale)
        appendRow(tr("Y:"), kScale);
}

/// The label tells it, where it does not lean on the one above.
QString Transform2DPropertyEditor::rowName(std::size_t row) const
{
    if (m_showPosition && row == 1)
        return tr("Offset Y");
    if (m_showScale && row == scaleYRow())
        return tr("Scale Y");
    return m_labels[row] ? spokenText(*m_labels[row]) : QString();
}

void Transform2DPropertyEditor::appendRow(const QString &label, const RowKind &kind)
{
    m_labels[m_rowCount] = new QLabel(label);
    m_sliders[m_rowCount] = makeSlider(kind);
    m_spinBoxes[m_rowCount] = makeSpinBox(kind);
    ++m_rowCount;
}

QSlider *Transform2DPropertyEditor::makeSlider(const RowKind &kind)
{
    auto *const slider = new ThousandthsSlider;
    slider->setRange(positionOf(kind.minimum), positionOf(kind.maximum));
    slider->setValue(positionOf(kind.start));
    slider->setSingleStep(kind.singleStep);
    slider->setPageStep(kind.pageStep);
    watchSlider(slider, this);
    connect(slider, &QSlider::valueChanged, this, &Transform2DPropertyEditor::sliderChanged);
    return slider;
}

QDoubleSpinBox *Transform2DPropertyEditor::makeSpinBox(const RowKind &kind)
{
    auto *const spinBox = new QDoubleSpinBox;
    spinBox->setDecimals(kind.decimals); // first, so that the smallest scale is not rounded to 0
    spinBox->setRange(kind.minimum, kind.maximum);
    spinBox->setSingleStep((spinBox->maximum() - spinBox->minimum()) / 100.0);
    spinBox->setSuffix(QString::fromUtf16(kind.suffix));
    spinBox->setValue(kind.start);
    spinBox->installEventFilter(this);
    connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &Transform2DPropertyEditor::spinBoxChanged);
    return spinBox;
}

QWidget *Transform2DPropertyEditor::makeContainer()
{
    auto *const container = new QWidget;
    auto *const grid = new QGridLayout(container);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(2, 1); // the sliders take the spare width
    std::size_t plainRows = m_rowCount;
    if (m_collapsibleScale && !m_uniformScale) {
        // Without scale rows too, on purpose; it then stands below the last row and folds nothing.
        m_disclosureButton = makeRoundButton();
        connect(m_disclosureButton, &UI::DisclosureButton::toggled, this,
                &Transform2DPropertyEditor::setScaleExpanded);
        grid->addWidget(m_disclosureButton, int(scaleXRow()), 1);
        plainRows = scaleXRow();
    }
    for (std::size_t i = 0; i < m_rowCount; ++i) {
        const int row = int(i);
        grid->addWidget(m_labels[i], row, 0, Qt::AlignRight);
        if (i < plainRows)
            grid->addWidget(m_sliders[i], row, 1, 1, 2);
        else
            grid->addWidget(m_sliders[i], row, 2);
        grid->addWidget(m_spinBoxes[i], row, 3);
    }
    if (m_disclosureButton)
        setTabOrderAsShown();
    return container;
}

/// The button is the first child and stands before scale X, or else below the other rows.
void Transform2DPropertyEditor::setTabOrderAsShown()
{
    if (scaleXRow() < m_rowCount)
        visitBefore(m_disclosureButton, m_sliders[scaleXRow()]);
    else if (m_rowCount > 0)
        QWidget::setTabOrder(m_spinBoxes[m_rowCount - 1], m_disclosureButton);
}

/// What the field shows, or fallback where there is none.
double Transform2DPropertyEditor::numberIn(std::size_t row, double fallback) const
{
    return m_spinBoxes[row] ? m_spinBoxes[row]->value() : fallback;
}

void Transform2DPropertyEditor::showNumber(std::size_t row, double number)
{
    showQuietly(m_spinBoxes[row], finite(number));
    setQuietly(m_sliders[row], &QSlider::setValue, positionOf(number));
}

bool Transform2DPropertyEditor::hasCollapsibleScale() const
{
    return m_showScale && !m_uniformScale && m_collapsibleScale;
}

std::size_t Transform2DPropertyEditor::rotationRow() const
{
    return m_showPosition ? 2 : 0;
}

std::size_t Transform2DPropertyEditor::scaleXRow() const
{
    return rotationRow() + (m_showRotation ? 1 : 0);
}

std::size_t Transform2DPropertyEditor::scaleYRow() const
{
    return scaleXRow() + 1;
}

/// Whether editor and row are still there: hiding a field that has the focus ends its interactive
/// run.
bool Transform2DPropertyEditor::showScaleY(bool visible)
{
    const QPointer<Transform2DPropertyEditor> self(this);
    const QPointer<QWidget> controls[] = {m_labels[scaleYRow()].data(),
                                          m_sliders[scaleYRow()].data(),
                                          m_spinBoxes[scaleYRow()].data()};
    if (m_labels[scaleXRow()])
        m_labels[scaleXRow()]->setText(visible ? tr("Scale X:") : tr("Scale:"));
    for (const QPointer<QWidget> &control : controls) {
        if (control)
            control->setVisible(visible);
    }
    return self && m_spinBoxes[scaleYRow()];
}

void Transform2DPropertyEditor::copyScaleXToY()
{
    if (m_spinBoxes[scaleXRow()])
        showQuietly(m_spinBoxes[scaleYRow()], m_spinBoxes[scaleXRow()]->value());
    if (m_sliders[scaleXRow()])
        setQuietly(m_sliders[scaleYRow()], &QSlider::setValue, m_sliders[scaleXRow()]->value());
}

} // namespace Tessark::PropertyUI
