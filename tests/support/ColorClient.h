#pragma once

#include "core/ColorControl.h"

#include <QStringList>

#include <array>
#include <functional>

/// Writes down what a colour control tells, its client calls and its signals, in the order they come.
/// A test may have something done inside a call.
class ColorClient : public Tessark::UI::IColorControlClient
{
public:
    void watch(Tessark::UI::ColorControl *control)
    {
        using Tessark::UI::ColorControl;
        const auto record = [this, control](auto signal, const QString &entry) {
            QObject::connect(control, signal, control, [this, entry] { m_log.append(entry); });
        };
        record(&ColorControl::changed, QStringLiteral("changed"));
        record(&ColorControl::interactionStarted, QStringLiteral("started"));
        record(&ColorControl::interactionFinished, QStringLiteral("finished"));
    }

    void colorChanged(float red, float green, float blue, float alpha) override
    {
        m_log.append(QStringLiteral("color"));
        last = {red, green, blue, alpha};
        if (onColor)
            onColor(last);
    }

    void colorCheckPoint() override
    {
        m_log.append(QStringLiteral("check"));
        if (onCheckPoint)
            onCheckPoint();
    }

    void note(const QString &entry) { m_log.append(entry); }

    /// What came since the last call, separated by spaces.
    QString take()
    {
        const QString text = m_log.join(QLatin1Char(' '));
        m_log.clear();
        return text;
    }

    std::array<float, 4> last{};
    std::function<void(const std::array<float, 4> &)> onColor;
    std::function<void()> onCheckPoint;

private:
    QStringList m_log;
};
