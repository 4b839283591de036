#pragma once

#include <QtGlobal>

#include <random>

namespace TestSupport {

using Random = std::mt19937_64;

/// A number from 0 to below limit.
inline int below(Random &random, int limit)
{
    return int(random() % quint64(limit));
}

/// Whether something that happens in percent of all cases happens now.
inline bool happens(Random &random, int percent)
{
    return below(random, 100) < percent;
}

} // namespace TestSupport
