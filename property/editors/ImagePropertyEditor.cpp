#include "property/editors/ImagePropertyEditor.h"

#include "property/EditorHelpers_p.h"

#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QPixmap>

namespace Tessark::PropertyUI {

PropertyEditor *ImagePropertyEditor::Factory(Property *property)
{
    return new ImagePropertyEditor(property);
}

ImagePropertyEditor::ImagePropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

ImagePropertyEditor::~ImagePropertyEditor() = default;

void ImagePropertyEditor::setValue(const QVariant &value)
{
    if (!m_label)
        return;
    switch (value.userType()) {
    case QMetaType::QPixmap:
        m_label->setPixmap(value.value<QPixmap>());
        break;
    case QMetaType::QImage:
        m_label->setPixmap(QPixmap::fromImage(value.value<QImage>()));
        break;
    case QMetaType::QIcon:
        m_label->setPixmap(value.value<QIcon>().pixmap(m_label->size()));
        break;
    default:
        break;
    }
}

QVariant ImagePropertyEditor::value() const
{
    const QPixmap pixmap = m_label ? m_label->pixmap() : QPixmap();
    return pixmap.isNull() ? QVariant() : QVariant(pixmap);
}

QWidget *ImagePropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_label = new QLabel;
        m_widget = m_label;
        applyAlignmentHint(m_label, *m_property);
    }
    return m_widget;
}

} // namespace Tessark::PropertyUI
