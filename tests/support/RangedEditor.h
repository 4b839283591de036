#pragma once

#include "property/PropertyEditor.h"

#include <QAbstractSpinBox>
#include <QSlider>
#include <QWidget>

#include <memory>

/// A property, its editor and the two controls of a number row, shown in a window of its own.
template <typename Editor, typename SpinBox>
struct RangedEditor
{
    explicit RangedEditor(const QString &type, const QVariant &minimum = QVariant(),
                          const QVariant &maximum = QVariant())
        : property(QStringLiteral("item"), QStringLiteral("Label"), type)
    {
        property.setRange(minimum, maximum);
    }

    void build()
    {
        editor = std::make_unique<Editor>(&property);
        widget.reset(editor->widget(nullptr));
        widget->resize(400, widget->sizeHint().height());
        slider = widget->template findChild<QSlider *>();
        spinBox = widget->template findChild<SpinBox *>();
    }

    void show()
    {
        widget->show();
        widget->activateWindow();
    }

    Tessark::PropertyUI::Property property;
    std::unique_ptr<Editor> editor;
    std::unique_ptr<QWidget> widget;
    QSlider *slider = nullptr;
    SpinBox *spinBox = nullptr;
};
