#pragma once

#include "property/PropertyEditor.h"
#include "property/PropertyExport.h"

#include <QMetaType>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

class QButtonGroup;
class QLayout;
class QSlider;
class QSpinBox;

namespace Tessark::PropertyUI {

/// How an image is to be saved: what an "image_format" property holds. A default one names no
/// format. Its meta-type is known as "Tessark::PropertyUI::ImageFormatDesc".
struct TESSARK_PROPERTY_EXPORT ImageFormatDesc
{
    QString format;          // "png", "jpeg", "tiff" or "bmp", in lower case
    int compressionRate = 0; // the JPEG quality, 1 to 100 when it comes from the editor
};

/**
 * Edits an "image_format" property: a radio button for each file format and, at first and while
 * the format is "jpeg", a slider and an entry field for its quality.
 *
 * Value: ImageFormatDesc. Its format is empty while no button is checked, as at first; its rate is
 * what the entry field shows, whatever the format. Before the widget exists it is a default one. No
 * hints are read.
 *
 * setValue() is silent. A format that is not among the four leaves the buttons as they are and
 * hides the quality, another type of value counts as a default ImageFormatDesc, and rates outside 1
 * to 100 are clamped. Each change by the user emits valueChanged() once, a click on the button
 * already checked too; dragging the slider and typing in the focused field are interactive runs.
 */
class TESSARK_PROPERTY_EXPORT ImageFormatEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit ImageFormatEditor(Property *property);
    ~ImageFormatEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

private Q_SLOTS:
    void compressionRateChanged(int rate);
    void buttonChecked(int id);

private:
    QLayout *makeFormatLine();
    QWidget *makeQualityRow();
    void showRate(int rate);
    void showQualityFor(const QString &format);

    const QStringList m_formats;                 // the index is the id of the format's button
    std::unique_ptr<QButtonGroup> m_buttonGroup; // without parent
    QPointer<QWidget> m_qualityRow;              // hidden by any format but "jpeg"
    QPointer<QSlider> m_qualitySlider;
    QPointer<QSpinBox> m_qualitySpinBox;
};

} // namespace Tessark::PropertyUI

Q_DECLARE_METATYPE(Tessark::PropertyUI::ImageFormatDesc)
