#pragma once

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyEditorRegistry.h>

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVector>
#include <QWheelEvent>

#include <functional>

namespace TestSupport {

/// A host's editor without a control: it shows what setValue() gave it, announces what a test tells
/// it to and notes what it is asked. Its widget is an empty frame named after the property.
class TestEditor : public Tessark::PropertyUI::PropertyEditor
{
public:
    static PropertyEditor *Factory(Tessark::PropertyUI::Property *property)
    {
        return new TestEditor(property);
    }

    explicit TestEditor(Tessark::PropertyUI::Property *property)
        : PropertyEditor(property)
    {
    }

    void setValue(const QVariant &value) override
    {
        shown = value;
        ++setValueCalls;
    }

    QVariant value() const override
    {
        ++valueCalls;
        return shown;
    }

    QWidget *widget(Tessark::PropertyUI::PropertyEditorContext *context) override
    {
        contexts.append(context);
        if (!m_widget) {
            parentWhenBuilt = parent();
            m_widget = new QFrame;
            m_widget->setObjectName(m_property->name);
            m_widget->setMinimumSize(80, 20);
        }
        return m_widget;
    }

    void propertyChanged() override
    {
        ++propertyChangedCalls;
        const auto hook = onPropertyChanged; // a copy: the hook may delete this editor
        if (hook)
            hook();
    }

    QVariant hint(const QString &key) override
    {
        hintsAsked.append(key);
        return PropertyEditor::hint(key);
    }

    /// A change made by the user.
    void edit(const QVariant &value)
    {
        shown = value;
        Q_EMIT
        valueChanged();
    }

    void start()
    {
        Q_EMIT
        startInteractiveChange();
    }
    void end()
    {
        Q_EMIT
        endInteractiveChange();
    }

    QVariant shown;
    int setValueCalls = 0;
    mutable int valueCalls = 0;
    int propertyChangedCalls = 0;
    QObject *parentWhenBuilt = nullptr;
    QVector<Tessark::PropertyUI::PropertyEditorContext *> contexts;
    QStringList hintsAsked;
    std::function<void()> onPropertyChanged;
};

/// A TestEditor that has no widget.
class WidgetlessEditor : public TestEditor
{
public:
    using TestEditor::TestEditor;

    static PropertyEditor *Factory(Tessark::PropertyUI::Property *property)
    {
        return new WidgetlessEditor(property);
    }

    QWidget *widget(Tessark::PropertyUI::PropertyEditorContext *context) override
    {
        contexts.append(context);
        return nullptr;
    }
};

/// A factory that makes nothing.
inline Tessark::PropertyUI::PropertyEditor *noEditor(Tessark::PropertyUI::Property *)
{
    return nullptr;
}

/// A host's editor of an int: a slider and a spin box, watched like those of the library. Its
/// propertyChanged() sets the new range without blocking, so that clamping announces a change.
class SliderSpinEditor : public Tessark::PropertyUI::PropertyEditor
{
public:
    static PropertyEditor *Factory(Tessark::PropertyUI::Property *property)
    {
        return new SliderSpinEditor(property);
    }

    explicit SliderSpinEditor(Tessark::PropertyUI::Property *property)
        : PropertyEditor(property)
    {
    }

    void setValue(const QVariant &value) override
    {
        const QSignalBlocker sliderBlocker(slider);
        const QSignalBlocker spinBoxBlocker(spinBox);
        slider->setValue(value.toInt());
        spinBox->setValue(value.toInt());
    }

    QVariant value() const override { return spinBox->value(); }

    QWidget *widget(Tessark::PropertyUI::PropertyEditorContext *) override
    {
        if (!m_widget)
            build();
        return m_widget;
    }

    void propertyChanged() override
    {
        slider->setRange(m_property->minValue.toInt(), m_property->maxValue.toInt());
        spinBox->setRange(m_property->minValue.toInt(), m_property->maxValue.toInt());
    }

    QSlider *slider = nullptr;
    QSpinBox *spinBox = nullptr;

private:
    void build()
    {
        m_widget = new QWidget;
        slider = new QSlider(Qt::Horizontal);
        spinBox = new QSpinBox;
        auto *const row = new QHBoxLayout(m_widget);
        row->addWidget(slider);
        row->addWidget(spinBox);
        propertyChanged();
        slider->installEventFilter(this);
        spinBox->installEventFilter(this);
        connect(slider, &QSlider::sliderPressed, this, &PropertyEditor::startInteractiveChange);
        connect(slider, &QSlider::sliderReleased, this, &PropertyEditor::endInteractiveChange);
        connect(slider, &QSlider::valueChanged, this, [this](int value) {
            const QSignalBlocker blocker(spinBox);
            spinBox->setValue(value);
            Q_EMIT
            valueChanged();
        });
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this, [this](int value) {
            const QSignalBlocker blocker(slider);
            slider->setValue(value);
            Q_EMIT
            valueChanged();
        });
    }
};

/// Registers a factory for a type string, over the library's own too, and puts back what was
/// there when it goes.
class ScopedFactory
{
public:
    ScopedFactory(const QString &type, Tessark::PropertyUI::PropertyEditorRegistry::Factory factory)
        : m_type(type)
    {
        using namespace Tessark::PropertyUI;
        PropertyEditorPanel::InitialiseRegistry();
        Property probe(QString(), QString(), type);
        m_previous = PropertyEditorRegistry::Instance()->factory(&probe);
        PropertyEditorRegistry::Instance()->registerPropertyEditor(type, factory);
    }

    ~ScopedFactory()
    {
        Tessark::PropertyUI::PropertyEditorRegistry::Instance()->registerPropertyEditor(m_type,
                                                                                        m_previous);
    }

    ScopedFactory(const ScopedFactory &) = delete;
    ScopedFactory &operator=(const ScopedFactory &) = delete;

private:
    QString m_type;
    Tessark::PropertyUI::PropertyEditorRegistry::Factory m_previous;
};

/// All editors of a panel, null entries included.
inline QVector<Tessark::PropertyUI::PropertyEditor *>
allEditors(const Tessark::PropertyUI::PropertyEditorPanel &panel)
{
    QVector<Tessark::PropertyUI::PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    return editors;
}

/// The panel's first editor of class Editor for the property of that name, or null.
template <typename Editor>
Editor *editorOf(const Tessark::PropertyUI::PropertyEditorPanel &panel, const QString &name)
{
    const auto editors = allEditors(panel);
    for (auto *candidate : editors) {
        auto *const editor = dynamic_cast<Editor *>(candidate);
        if (editor && editor->editedProperty()->name == name)
            return editor;
    }
    return nullptr;
}

/// Turns the wheel one step up over the middle of widget.
inline void turnWheel(QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    QWheelEvent event(middle, widget->mapToGlobal(middle), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace TestSupport
