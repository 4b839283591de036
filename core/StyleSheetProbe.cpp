#include "core/StyleSheetProbe_p.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWidget>

namespace Tessark::UI {

namespace {

/// Paints nothing and remembers what was asked for.
class ProbeEngine final : public QPaintEngine
{
public:
    ProbeEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}

    void drawPath(const QPainterPath &) override { m_hasDrawn = true; }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { m_hasDrawn = true; }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { m_hasDrawn = true; }
    void drawTextItem(const QPointF &, const QTextItem &) override
    {
        m_textColor = painter()->pen().color();
    }

    bool hasDrawn() const { return m_hasDrawn; }
    QColor textColor() const { return m_textColor; }

private:
    bool m_hasDrawn = false;
    QColor m_textColor; // invalid until there was text
};

class ProbeDevice final : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &m_engine; }
    const ProbeEngine &engine() const { return m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return kSide;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return kDotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return qRound(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    static constexpr int kSide = 1000;
    static constexpr int kDotsPerInch = 96;

    mutable ProbeEngine m_engine; // paintEngine() hands out a mutable one of a const device
};

bool drawsBackground(const QWidget *widget, const QStyleOptionButton &option)
{
    ProbeDevice device;
    QPainter painter(&device);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
    painter.end();
    return device.engine().hasDrawn();
}

QColor textColor(const QWidget *widget, const QStyleOptionButton &option)
{
    // The label of a check box is the one that takes its colour from the rule of this very state.
    QStyleOptionButton label = option;
    label.rect = QRect(0, 0, 100, 100);
    label.icon = QIcon();
    label.text = QStringLiteral("x");
    ProbeDevice device;
    QPainter painter(&device);
    widget->style()->drawControl(QStyle::CE_CheckBoxLabel, &label, &painter, widget);
    painter.end();
    const QColor color = device.engine().textColor();
    return color.isValid() ? color : option.palette.color(QPalette::ButtonText);
}

} // namespace

StyleSheetLook styleSheetLook(const QWidget *widget, const QStyleOptionButton &option)
{
    return {drawsBackground(widget, option), textColor(widget, option)};
}

void repolish(QWidget *widget)
{
    if (!widget->testAttribute(Qt::WA_StyleSheet))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace Tessark::UI
