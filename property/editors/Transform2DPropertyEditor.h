#pragma once

#include "property/PropertyEditor.h"

#include <QGenericMatrix>
#include <QPointer>

#include <array>
#include <cstddef>

class QDoubleSpinBox;
class QLabel;
class QSlider;

namespace Tessark::UI {
class DisclosureButton;
}

namespace Tessark::PropertyUI {

/**
 * Edits a "transform2D" property, a transform of normalised texture coordinates, with up to five
 * rows of label, slider and entry field: offset X and Y (-1 to 1), rotation (-180 to 180 degrees),
 * scale X and Y (0.0001 to 5).
 *
 * Value: QGenericMatrix<3, 3, double>, registered as "QMatrix3x3"; see XfrmToMatrix(). setValue()
 * also takes the text of QMatrix3x3_toString(); any other variant shows the identity. Numbers beyond
 * the controls are shown as the nearest that fits, NaN as 0.
 *
 * Hints read when the widget is built (bool): kPropertyHintXfrmNoRotation, kPropertyHintXfrmNoPosition
 * and kPropertyHintXfrmNoScale leave rows out, whose numbers are then 0 and, for the scale, 1;
 * kPropertyHintXfrmUniformScale leaves out scale Y, which then equals scale X;
 * kPropertyHintXfrmCollapsibleScale folds scale Y away behind a button. The constructor sets
 * kPropertyHintFullWidth on the property.
 *
 * Each change by the user emits valueChanged() once; dragging a slider and typing in a focused field
 * are interactive runs. setValue() is silent; while a change of a slider or field is being announced
 * it does nothing, so that the host's echo does not disturb the user. A slider holds thousandths,
 * truncated, and moving any of them sets the fields of all rows to what their sliders hold.
 */
class TESSARK_PROPERTY_EXPORT Transform2DPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    /// Makes the matrix that moves coordinates by minus the offset, then turns them by rotation
    /// (degrees) and divides them by the scale, both about (0.5, 0.5). A scale of 0 gives infinities
    /// and NaNs; one of exactly 2.220446049250313e-16 is multiplied with.
    ///
    /// In rows of three, the elements as stored (constData()) are the matrix that a column (u, v, 1)
    /// is multiplied with: in Qt's indexing its transpose, with the translation in row 2.
    static void XfrmToMatrix(double offsetX, double offsetY, double rotation, double scaleX,
                             double scaleY, QGenericMatrix<3, 3, double> &matrix);

    /// The numbers of a matrix made by XfrmToMatrix(), rotation in degrees; null pointers are passed
    /// over. Negative scales come back positive, with the rotation that goes with them; a singular
    /// matrix gives infinities or NaNs.
    static void MatrixToXfrm(QGenericMatrix<3, 3, double> matrix, double *offsetX, double *offsetY,
                             double *rotation, double *scaleX, double *scaleY);

    /// Makes a right-handed rotation about axis 0, 1 or 2, in the order of elements above; for other
    /// axes the identity. The angle is in radians, on purpose, unlike XfrmToMatrix()'s.
    static void MatrixCalculateRotation(double angle, int axis,
                                        QGenericMatrix<3, 3, double> &matrix);

    /// Sets kPropertyHintFullWidth on property, which must outlive the editor.
    explicit Transform2DPropertyEditor(Property *property);
    ~Transform2DPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

    /// Whether scale Y is unfolded; true too when there is no button to fold it.
    bool isScaleExpanded() const;

public Q_SLOTS:
    /// Shows or hides scale Y, if the hints make it collapsible. Hiding it sets it to scale X, and
    /// emits valueChanged() if they differed. Showing it emits nothing and copies nothing: scale Y is
    /// what it was before scale X was edited alone.
    void setScaleExpanded(bool expanded);

private Q_SLOTS:
    void spinBoxChanged(double value);
    void sliderChanged(int value);

private:
    struct RowKind;

    void readHints();
    void makeRows();
    void appendRow(const QString &label, const RowKind &kind);
    QString rowName(std::size_t row) const;
    QSlider *makeSlider(const RowKind &kind);
    QDoubleSpinBox *makeSpinBox(const RowKind &kind);
    QWidget *makeContainer();
    void setTabOrderAsShown();
    double numberIn(std::size_t row, double fallback) const;
    void showNumber(std::size_t row, double number);
    bool hasCollapsibleScale() const;
    std::size_t rotationRow() const;
    std::size_t scaleXRow() const;
    std::size_t scaleYRow() const;
    bool showScaleY(bool visible);
    void copyScaleXToY();

    static constexpr std::size_t kMaximumRows = 5;

    // By row: offset X, offset Y, rotation, scale X, scale Y, without those that are left out.
    std::array<QPointer<QDoubleSpinBox>, kMaximumRows> m_spinBoxes;
    std::array<QPointer<QSlider>, kMaximumRows> m_sliders;
    std::array<QPointer<QLabel>, kMaximumRows> m_labels;
    bool m_updating = false; // while a change of a slider or field is being announced
    bool m_showRotation = true;
    bool m_showScale = true;
    bool m_showPosition = true;
    bool m_uniformScale = false;
    bool m_collapsibleScale = false;
    std::size_t m_rowCount = 0;
    QPointer<UI::DisclosureButton> m_disclosureButton; // null unless the scale is collapsible
};

} // namespace Tessark::PropertyUI
