#pragma once

#include "host/RuleTree_p.h"

#include <QString>

#include <optional>

namespace Tessark::PropertyHost {

class RuleNames;

/// What is wrong with the text of a rule, and where.
struct RuleError
{
    int position = 0; // of a character, counted from 0
    QString message;
};

// The most that a rule may have; whatever passes is evaluated in little time and stack.
constexpr int kMaximumRuleLength = 1000;
constexpr int kMaximumRuleDepth = 32;

/// Takes a rule that gives a truth value apart; nothing, and why in error, when it is wrong.
std::optional<RuleTree> parseCondition(const QString &text, const RuleNames &names,
                                       RuleError &error);

/// The same for a rule that gives a number, or the numbers of a composite value with count parts.
std::optional<RuleTree> parseBound(const QString &text, const RuleNames &names, int count,
                                   RuleError &error);

} // namespace Tessark::PropertyHost
