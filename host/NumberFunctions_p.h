#pragma once

#include <QString>
#include <QVector>

namespace Tessark::PropertyHost {

/// A function that expressions in number fields may call.
struct NumberFunction
{
    const char *name;
    int minArguments;
    int maxArguments;
    double (*call)(const QVector<double> &arguments); // may give a NaN
};

/// The function of that name, or null.
const NumberFunction *numberFunction(const QString &name);

} // namespace Tessark::PropertyHost
