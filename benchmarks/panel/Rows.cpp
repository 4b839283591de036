#include "Rows.h"

namespace {

constexpr int kPeriod = 20;

} // namespace

RowKind kindOf(int row)
{
    constexpr auto kF = RowKind::Fraction;
    constexpr auto kI = RowKind::Integer;
    static constexpr RowKind kKinds[kPeriod] = {
        kF,
        kI,
        kF,
        RowKind::Switch,
        kF,
        kI,
        kF,
        RowKind::Text,
        kF,
        kI,
        kF,
        kF,
        kF,
        RowKind::Switch,
        kF,
        kI,
        kF,
        RowKind::Choice,
        RowKind::Text,
        RowKind::Color,
    };
    return kKinds[row % kPeriod];
}

QString labelOf(int row)
{
    return QStringLiteral("Row %1").arg(row);
}

QStringList choiceTexts()
{
    QStringList texts;
    for (int i = 0; i < kChoices; ++i)
        texts.append(QStringLiteral("Choice %1").arg(i));
    return texts;
}

double fractionOf(int row, int round)
{
    return double((row * 7 + round * 3) % 100) / 100 * kFractionLimit;
}

int integerOf(int row, int round)
{
    return (row * 13 + round * 17) % kIntegerLimit;
}

bool switchOf(int row, int round)
{
    return (row / kPeriod + round) % 2 == 0;
}

QString textOf(int row, int round)
{
    return QStringLiteral("text %1").arg((row + round) % 1000);
}

int choiceOf(int row, int round)
{
    return (row / kPeriod + round) % kChoices;
}

QColor colorOf(int row, int round)
{
    return QColor::fromHsv((row * 11 + round * 37) % 360, 128 + (row + round) % 100, 200);
}

int groupedRows(int rows)
{
    return rows / 2;
}
