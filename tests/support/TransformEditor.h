#pragma once

#include "core/DisclosureButton.h"
#include "property/editors/Transform2DPropertyEditor.h"

#include "support/TransformNumbers.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>
#include <QTest>

#include <memory>

namespace TestSupport {

/// The hints of the transform editor, as bits.
enum TransformHint { NoRotation = 1, NoPosition = 2, NoScale = 4, Uniform = 8, Collapsible = 16 };

/// The keys of the hints, in the order of their bits.
inline QStringList transformHints()
{
    using namespace Tessark::PropertyUI;
    return {kPropertyHintXfrmNoRotation, kPropertyHintXfrmNoPosition, kPropertyHintXfrmNoScale,
            kPropertyHintXfrmUniformScale, kPropertyHintXfrmCollapsibleScale};
}

/// Whether the hints make a scale that folds.
inline bool isFoldable(int hints)
{
    return (hints & Collapsible) && !(hints & (Uniform | NoScale));
}

/// Adds a row for each of the 32 combinations of the hints: "hints" holds their bits.
inline void addAllTransformHints()
{
    const QStringList keys = transformHints();
    QTest::addColumn<int>("hints");
    for (int hints = 0; hints < 1 << keys.size(); ++hints) {
        QStringList names;
        for (int i = 0; i < keys.size(); ++i) {
            if (hints & (1 << i))
                names << keys.at(i);
        }
        const QString name =
            names.isEmpty() ? QStringLiteral("none") : names.join(QLatin1Char('+'));
        QTest::newRow(qPrintable(name)) << hints;
    }
}

/// A transform property, its editor and, once built, the controls by row.
struct TransformEditor
{
    explicit TransformEditor(int hints = 0)
        : property(QStringLiteral("t"), QStringLiteral("T"),
                   Tessark::PropertyUI::kPropertyTypeTransform2D)
        , editor(std::make_unique<Tessark::PropertyUI::Transform2DPropertyEditor>(&property))
    {
        const QStringList keys = transformHints();
        for (int i = 0; i < keys.size(); ++i) {
            if (hints & (1 << i))
                property.setHint(keys.at(i), true);
        }
    }

    TransformEditor(const TransformEditor &) = delete;
    TransformEditor &operator=(const TransformEditor &) = delete;

    TransformEditor &build()
    {
        widget.reset(editor->widget(nullptr));
        widget->resize(500, widget->sizeHint().height());
        grid = qobject_cast<QGridLayout *>(widget->layout());
        button = widget->findChild<Tessark::UI::DisclosureButton *>();
        while (box(rows))
            ++rows;
        return *this;
    }

    TransformEditor &show()
    {
        widget->show();
        widget->activateWindow();
        return *this;
    }

    template <typename Control>
    Control *at(int row, int column) const
    {
        QLayoutItem *const item = grid->itemAtPosition(row, column);
        return item ? qobject_cast<Control *>(item->widget()) : nullptr;
    }

    QLabel *label(int row) const { return at<QLabel>(row, 0); }
    QSlider *slider(int row) const { return at<QSlider>(row, 2); }
    QDoubleSpinBox *box(int row) const { return at<QDoubleSpinBox>(row, 3); }

    bool isShown(int row) const
    {
        const bool shown = box(row)->isVisibleTo(widget.get());
        return shown && label(row)->isVisibleTo(widget.get())
               && slider(row)->isVisibleTo(widget.get());
    }

    bool isHidden(int row) const
    {
        return box(row)->isHidden() && label(row)->isHidden() && slider(row)->isHidden();
    }

    QVector<double> numbers() const
    {
        QVector<double> result;
        for (int row = 0; row < rows; ++row)
            result.append(box(row)->value());
        return result;
    }

    QVector<int> positions() const
    {
        QVector<int> result;
        for (int row = 0; row < rows; ++row)
            result.append(slider(row)->value());
        return result;
    }

    void setValue(const Tessark::PropertyUI::DoubleMatrix3x3 &matrix)
    {
        editor->setValue(QVariant::fromValue(matrix));
    }

    void setValue(const Numbers &numbers) { setValue(matrixOf(numbers)); }

    Tessark::PropertyUI::DoubleMatrix3x3 value() const
    {
        return editor->value().value<Tessark::PropertyUI::DoubleMatrix3x3>();
    }

    bool holds(const Numbers &numbers) const { return value() == matrixOf(numbers); }

    Tessark::PropertyUI::Property property;
    std::unique_ptr<Tessark::PropertyUI::Transform2DPropertyEditor> editor;
    std::unique_ptr<QWidget> widget;
    QGridLayout *grid = nullptr;
    Tessark::UI::DisclosureButton *button = nullptr;
    int rows = 0;
};

} // namespace TestSupport
