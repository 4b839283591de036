#include "host/EditorRange_p.h"

#include <core/LogSlider.h>
#include <property/PropertyEditorRegistry.h>
#include <property/editors/FloatPropertyEditor.h>
#include <property/editors/PercentPropertyEditor.h>
#include <property/editors/VecPropertyEditor.h>

#include <QDoubleSpinBox>
#include <QSignalBlocker>
#include <QSlider>

#include <memory>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// What makes editors of the same class, if it is one that has to be told its range.
PropertyEditorRegistry::Factory factoryOf(const PropertyEditor &editor)
{
    if (qobject_cast<const FloatPropertyEditor *>(&editor))
        return FloatPropertyEditor::Factory;
    if (qobject_cast<const PercentPropertyEditor *>(&editor))
        return PercentPropertyEditor::Factory;
    if (dynamic_cast<const Vec2PropertyEditor *>(&editor))
        return Vec2PropertyEditor::Factory;
    if (dynamic_cast<const Vec3PropertyEditor *>(&editor))
        return Vec3PropertyEditor::Factory;
    if (dynamic_cast<const Vec4PropertyEditor *>(&editor))
        return Vec4PropertyEditor::Factory;
    return nullptr;
}

void copyRange(const QSlider &from, QSlider &to)
{
    const auto *const fromReal = qobject_cast<const UI::LogSlider *>(&from);
    auto *const toReal = qobject_cast<UI::LogSlider *>(&to);
    if (fromReal && toReal) {
        toReal->setRealRange(fromReal->minimumExponent(), fromReal->maximumExponent(),
                             from.maximum() - from.minimum());
    } else {
        to.setRange(from.minimum(), from.maximum());
    }
    to.setSingleStep(from.singleStep());
    to.setPageStep(from.pageStep());
}

void copyRange(const QDoubleSpinBox &from, QDoubleSpinBox &to)
{
    to.setRange(from.minimum(), from.maximum());
    to.setSingleStep(from.singleStep());
}

template <typename Control>
void copyRanges(const QWidget &from, const QWidget &to)
{
    const auto sources = from.findChildren<Control *>();
    const auto targets = to.findChildren<Control *>();
    for (int i = 0; i < sources.size() && i < targets.size(); ++i) {
        const QSignalBlocker blocker(targets.at(i));
        copyRange(*sources.at(i), *targets.at(i));
    }
}

} // namespace

void renewRange(PropertyEditor &editor)
{
    const auto factory = factoryOf(editor);
    const QWidget *const widget = editor.widget(nullptr);
    if (!factory || !widget)
        return;
    // How a range becomes positions, decimals and steps is the editor's affair: one that is built
    // now shows what they are.
    const std::unique_ptr<PropertyEditor> model(factory(editor.editedProperty()));
    const std::unique_ptr<QWidget> modelWidget(model->widget(nullptr));
    copyRanges<QSlider>(*modelWidget, *widget);
    copyRanges<QDoubleSpinBox>(*modelWidget, *widget);
}

} // namespace Tessark::PropertyHost
