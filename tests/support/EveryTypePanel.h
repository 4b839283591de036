#pragma once

#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/editors/ImageFormatEditor.h>

#include <QColor>
#include <QPixmap>
#include <QPointer>
#include <QSize>
#include <QVBoxLayout>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <memory>

namespace TestSupport {

/// A window with a panel of all 26 types and their forms, in nested groups and tabs. No two rows have
/// the same name.
class EveryTypePanel
{
public:
    using Property = Tessark::PropertyUI::Property;
    using PropertyEditor = Tessark::PropertyUI::PropertyEditor;
    using PropertyEditorPanel = Tessark::PropertyUI::PropertyEditorPanel;

    EveryTypePanel()
    {
        addNumbers();
        addTexts();
        addChoices();
        addVectors();
        addSizes();
        addPictures();
        build();
    }

    PropertyEditorPanel *panel() const { return m_panel; }
    QWidget *window() const { return m_window.get(); }
    RecordingDelegate &delegate() { return m_delegate; }

    Property *property(const QString &name) const
    {
        for (Property *property : m_set.list()) {
            if (property->name == name)
                return property;
        }
        return nullptr;
    }

    PropertyEditor *editor(const QString &name) const
    {
        QVector<PropertyEditor *> editors;
        m_panel->getEditors(editors, QString());
        for (PropertyEditor *editor : editors) {
            if (editor && editor->editedProperty()->name == name)
                return editor;
        }
        return nullptr;
    }

    QWidget *row(const QString &name) const { return editor(name)->widget(nullptr); }

    template <typename Control>
    Control *control(const QString &name, int index = 0) const
    {
        QWidget *const widget = row(name);
        if (auto *const whole = qobject_cast<Control *>(widget))
            return whole;
        return widget->findChildren<Control *>().value(index);
    }

private:
    using Kind = const QString &;

    Property &add(const char *name, Kind type, const QVariant &value = QVariant())
    {
        const QString text = QString::fromLatin1(name);
        QString label = text;
        label.replace(0, 1, text.left(1).toUpper());
        m_delegate.values[text] = value;
        return m_set.add(text, label, type);
    }

    void addNumbers()
    {
        using namespace Tessark::PropertyUI;
        add("camera", kPropertyTypeBeginGroup);
        add("gain", kPropertyTypeFloat, 2.5)
            .setRange(0.0, 10.0)
            .setHint(kPropertyHintSuffix, QStringLiteral(" dB"));
        add("lens", kPropertyTypeBeginGroup);
        add("rate", kPropertyTypeFloat, 50.0)
            .setRange(0.1, 1000.0)
            .setHint(kPropertyHintLogarithmicSlider, true);
        add("frames", kPropertyTypeInteger, 25).setRange(1, 120);
        add("lensEnd", kPropertyTypeEndGroup);
        add("volume", kPropertyTypePercent, 0.85).setRange(0.0, 1.0);
        add("cameraEnd", kPropertyTypeEndGroup);
    }

    void addTexts()
    {
        using namespace Tessark::PropertyUI;
        add("title", kPropertyTypeString, QStringLiteral("Dawn"));
        add("folder", kPropertyTypeFilename, QStringLiteral("/tmp"));
        add("notes", kPropertyTypeText, QStringLiteral("one take"));
        add("status", kPropertyTypeStaticText, QStringLiteral("ready"));
        add("line", kPropertyTypeSeparator);
        add("run", kPropertyTypeAction);
    }

    void addChoices()
    {
        using namespace Tessark::PropertyUI;
        const QVariantList texts = {QStringLiteral("Fast"), QStringLiteral("Good")};
        add("active", kPropertyTypeBoolean, true);
        add("muted", kPropertyTypeBoolean, false).setHint(kPropertyHintBoolHideLabel, true);
        add("mode", kPropertyTypeEnumeration, 1).setHint(kPropertyHintDisplayValues, texts);
        add("quality", kPropertyTypeEnumeration, 0)
            .setHint(kPropertyHintDisplayValues, texts)
            .setHint(kPropertyHintWidget, kWidgetTypeRadioButtons);
    }

    void addVectors()
    {
        using namespace Tessark::PropertyUI;
        add("views", kPropertyTypeBeginTabGroup);
        add("vectors", kPropertyTypeTab);
        const QVector4D low(-5, -5, -5, -5);
        const QVector4D high(5, 5, 5, 5);
        add("offset", kPropertyTypeVec2, QVector2D(1, 2)).setRange(low, high);
        add("position", kPropertyTypeVec3, QVector3D(1, 2, 3))
            .setRange(low, high)
            .setHint(kPropertyHintShowSliders, true);
        add("scale", kPropertyTypeVec3, QVector3D(1, 2, 3))
            .setRange(low, high)
            .setHint(kPropertyHintShowSliders, true)
            .setHint(kPropertyHintShowMultipleCheck, true);
        add("stretch", kPropertyTypeVec2, QVector2D(1, 1))
            .setRange(low, high)
            .setHint(kPropertyHintShowMultipleCheck, true);
        add("crop", kPropertyTypeVec4, QVector3D(1, 2, 3)).setRange(low, high);
        add("colors", kPropertyTypeTab);
        add("shade", kPropertyTypeBeginGroup);
        add("tint", kPropertyTypeColor, QColor(Qt::darkCyan));
        add("shadeEnd", kPropertyTypeEndGroup);
        add("viewsEnd", kPropertyTypeEndTabGroup);
    }

    void addSizes()
    {
        using namespace Tessark::PropertyUI;
        add("badge", kPropertyTypeSize, QSize(96, 64));
        add("frame", kPropertyTypeRenderSize, QSize(640, 480))
            .setHint(kPropertyHintFullSize, QSize(640, 480));
    }

    void addPictures()
    {
        using namespace Tessark::PropertyUI;
        QPixmap picture(8, 8);
        picture.fill(Qt::red);
        ImageFormatDesc format;
        format.format = QStringLiteral("jpeg");
        format.compressionRate = 80;
        add("poster", kPropertyTypeImage, picture);
        add("format", kPropertyTypeImageFormat, QVariant::fromValue(format));
        add("floor", kPropertyTypeTexture);
        add("placement", kPropertyTypeTransform2D);
        add("folded", kPropertyTypeTransform2D).setHint(kPropertyHintXfrmCollapsibleScale, true);
    }

    void build()
    {
        m_window = std::make_unique<QWidget>();
        m_panel = new PropertyEditorPanel(m_set.list(), &m_delegate, nullptr);
        m_panel->updateUI();
        auto *const layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_panel);
    }

    PropertySet m_set;
    RecordingDelegate m_delegate;
    std::unique_ptr<QWidget> m_window;
    QPointer<PropertyEditorPanel> m_panel;
};

} // namespace TestSupport
