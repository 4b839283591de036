#include "host/NumberFunctions_p.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace Tessark::PropertyHost {

namespace {

using Arguments = QVector<double>;

constexpr int kAnyNumber = std::numeric_limits<int>::max();

template <double (*Function)(double)>
double ofOne(const Arguments &arguments)
{
    return Function(arguments.first());
}

double smallest(const Arguments &arguments)
{
    return *std::min_element(arguments.cbegin(), arguments.cend());
}

double largest(const Arguments &arguments)
{
    return *std::max_element(arguments.cbegin(), arguments.cend());
}

constexpr NumberFunction kFunctions[] = {
    {"abs", 1, 1, ofOne<std::fabs>},    {"ceil", 1, 1, ofOne<std::ceil>},
    {"cos", 1, 1, ofOne<std::cos>},     {"floor", 1, 1, ofOne<std::floor>},
    {"max", 2, kAnyNumber, largest},    {"min", 2, kAnyNumber, smallest},
    {"round", 1, 1, ofOne<std::round>}, {"sin", 1, 1, ofOne<std::sin>},
    {"sqrt", 1, 1, ofOne<std::sqrt>},
};

} // namespace

const NumberFunction *numberFunction(const QString &name)
{
    const auto *const found = std::find_if(
        std::cbegin(kFunctions), std::cend(kFunctions),
        [&name](const NumberFunction &function) { return name == QLatin1String(function.name); });
    return found == std::cend(kFunctions) ? nullptr : found;
}

} // namespace Tessark::PropertyHost
