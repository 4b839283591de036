#include "property/editors/ImageFormatEditor.h"

#include "property/EditorHelpers_p.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>

namespace Tessark::PropertyUI {

namespace {

constexpr int kLowestQuality = 1;
constexpr int kHighestQuality = 100;

// Known by name from the moment the library is loaded.
[[maybe_unused]] const bool s_valueTypeRegistered = [] {
    qRegisterMetaType<ImageFormatDesc>("Tessark::PropertyUI::ImageFormatDesc");
    return true;
}();

/// Only this spelling: the comparison is case-sensitive.
bool hasQuality(const QString &format)
{
    return format == QLatin1String("jpeg");
}

} // namespace

PropertyEditor *ImageFormatEditor::Factory(Property *property)
{
    return new ImageFormatEditor(property);
}

ImageFormatEditor::ImageFormatEditor(Property *property)
    : PropertyEditor(property)
    , m_formats{QStringLiteral("png"), QStringLiteral("jpeg"), QStringLiteral("tiff"),
                QStringLiteral("bmp")}
{
}

ImageFormatEditor::~ImageFormatEditor() = default;

void ImageFormatEditor::setValue(const QVariant &value)
{
    if (!m_widget)
        return;
    const auto desc = value.value<ImageFormatDesc>();
    checkButton(*m_buttonGroup, static_cast<int>(m_formats.indexOf(desc.format)));
    showRate(desc.compressionRate);
    showQualityFor(desc.format);
}

QVariant ImageFormatEditor::value() const
{
    ImageFormatDesc desc;
    if (m_widget)
        desc.format = m_formats.value(m_buttonGroup->checkedId()); // empty when none is checked
    if (m_qualitySpinBox)
        desc.compressionRate = m_qualitySpinBox->value();
    return QVariant::fromValue(desc);
}

QWidget *ImageFormatEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_widget = new QWidget;
        auto *const layout = new QVBoxLayout(m_widget); // with the style's margins
        layout->addLayout(makeFormatLine());
        m_qualityRow = makeQualityRow();
        layout->addWidget(m_qualityRow);
    }
    return m_widget;
}

QString ImageFormatEditor::controlName(const QWidget *control) const
{
    const bool isQuality = control == m_qualitySlider || control == m_qualitySpinBox;
    return isQuality ? tr("JPEG Quality") : PropertyEditor::controlName(control);
}

QLayout *ImageFormatEditor::makeFormatLine()
{
    auto *const line = new QHBoxLayout;
    m_buttonGroup = std::make_unique<QButtonGroup>();
    for (int id = 0; id < m_formats.size(); ++id) {
        auto *const button = new QRadioButton(m_formats.at(id));
        line->addWidget(button);
        m_buttonGroup->addButton(button, id);
    }
    line->addStretch();
    connect(m_buttonGroup.get(), &QButtonGroup::idClicked, this, &ImageFormatEditor::buttonChecked);
    return line;
}

QWidget *ImageFormatEditor::makeQualityRow()
{
    m_qualitySlider = new QSlider(Qt::Horizontal);
    m_qualitySlider->setRange(kLowestQuality, kHighestQuality);
    m_qualitySlider->setSingleStep(1);
    announceDrags(m_qualitySlider, this);
    connect(m_qualitySlider, &QSlider::valueChanged, this,
            &ImageFormatEditor::compressionRateChanged);

    m_qualitySpinBox = new QSpinBox;
    m_qualitySpinBox->setRange(kLowestQuality, kHighestQuality);
    m_qualitySpinBox->setSingleStep(1);
    m_qualitySpinBox->installEventFilter(this);
    connect(m_qualitySpinBox, qOverload<int>(&QSpinBox::valueChanged), this,
            &ImageFormatEditor::compressionRateChanged);

    auto *const row = new QWidget;
    auto *const line = new QHBoxLayout(row);
    line->addWidget(new QLabel(tr("JPEG Quality:")));
    line->addWidget(m_qualitySlider);
    line->addWidget(m_qualitySpinBox);
    return row;
}

void ImageFormatEditor::compressionRateChanged(int rate)
{
    showRate(rate);
    Q_EMIT valueChanged();
}

void ImageFormatEditor::buttonChecked(int id)
{
    showQualityFor(m_formats.value(id));
    Q_EMIT valueChanged();
}

void ImageFormatEditor::showRate(int rate)
{
    showQuietly(m_qualitySpinBox, rate);
    setQuietly(m_qualitySlider, &QSlider::setValue, rate);
}

void ImageFormatEditor::showQualityFor(const QString &format)
{
    if (m_qualityRow)
        m_qualityRow->setVisible(hasQuality(format));
}

} // namespace Tessark::PropertyUI
