#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

// The rows that both subjects show: the same mix, texts, ranges and values.

enum class RowKind { Fraction, Integer, Switch, Text, Choice, Color };

constexpr double kFractionLimit = 1.0;
constexpr int kIntegerLimit = 1000;
constexpr int kChoices = 8;

/// Half the rows are fractions, a fifth whole numbers, a tenth each switches and texts, a twentieth
/// each choices and colours.
RowKind kindOf(int row);

QString labelOf(int row);
QStringList choiceTexts();

// The value of a row in a round: every row has another value in the next round.
double fractionOf(int row, int round);
int integerOf(int row, int round);
bool switchOf(int row, int round);
QString textOf(int row, int round);
int choiceOf(int row, int round);
QColor colorOf(int row, int round);

/// The rows inside the collapsible group are those before this one.
int groupedRows(int rows);
