#pragma once

#include <QString>
#include <QVector>

#include <functional>
#include <variant>
#include <vector>

namespace Tessark::PropertyHost {

/// What a part of a rule stands for.
enum class RuleType {
    Boolean,
    Number,
    Text,
    Numbers, // a composite value as a whole
    Any,     // only known when the rule is evaluated
};

/// A value while a rule is evaluated; monostate for one that is missing.
using RuleValue = std::variant<std::monostate, bool, double, QString, QVector<double>>;

/// What a rule reads: the value of a row, or one component of it.
struct RuleOperand
{
    int row = -1;
    int component = -1; // -1 for the value as a whole
};

/// One operation of a rule; left and right are indexes of nodes made before.
struct RuleNode
{
    enum class Kind {
        Constant,
        Operand,
        Not,
        And,
        Or,
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        Among,     // left in the list whose last Candidate is right
        Candidate, // left, and the one before it is right
        Negate,
        Add,
        Subtract,
        Multiply,
        Divide,
    };

    Kind kind = Kind::Constant;
    RuleType type = RuleType::Any;
    int left = -1;
    int right = -1;
    RuleValue constant;  // of a Constant
    RuleOperand operand; // of an Operand
};

/**
 * A rule, taken apart and checked.
 *
 * Evaluating has no side effects. Missing values, values of another kind than expected and numbers
 * that are not finite never hold: a comparison with one of them is false, whatever it compares,
 * and arithmetic with one gives a missing value.
 */
class RuleTree
{
public:
    using Reader = std::function<RuleValue(const RuleOperand &)>;

    int add(const RuleNode &node);
    const RuleNode &node(int index) const;

    /// The node that the rule's result comes from.
    void setRoot(int index);
    bool isEmpty() const;

    RuleValue evaluate(const Reader &reader) const;

    /// True only when the rule gives the truth value true.
    bool holds(const Reader &reader) const;

    /// The rows that the rule reads, each once.
    QVector<int> rows() const;

private:
    RuleValue valueOf(int index, const Reader &reader) const;
    bool isAmong(const RuleNode &self, const Reader &reader) const;
    bool isTrue(int index, const Reader &reader) const;

    std::vector<RuleNode> m_nodes;
    int m_root = -1;
};

} // namespace Tessark::PropertyHost
