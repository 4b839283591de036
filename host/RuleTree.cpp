#include "host/RuleTree_p.h"

#include <cmath>

namespace Tessark::PropertyHost {

namespace {

using Kind = RuleNode::Kind;

bool compareNumbers(Kind kind, double left, double right)
{
    switch (kind) {
    case Kind::Equal:
        return left == right;
    case Kind::NotEqual:
        return left != right;
    case Kind::Less:
        return left < right;
    case Kind::LessEqual:
        return left <= right;
    case Kind::Greater:
        return left > right;
    default:
        return left >= right;
    }
}

bool compare(Kind kind, const RuleValue &left, const RuleValue &right)
{
    const auto *const leftNumber = std::get_if<double>(&left);
    const auto *const rightNumber = std::get_if<double>(&right);
    if (leftNumber && rightNumber)
        return compareNumbers(kind, *leftNumber, *rightNumber);
    const bool isComparable =
        left.index() == right.index() && !std::holds_alternative<std::monostate>(left);
    return isComparable
           && ((kind == Kind::Equal && left == right) || (kind == Kind::NotEqual && left != right));
}

RuleValue finiteOrMissing(double number)
{
    return std::isfinite(number) ? RuleValue(number) : RuleValue();
}

RuleValue calculate(Kind kind, double left, double right)
{
    switch (kind) {
    case Kind::Add:
        return finiteOrMissing(left + right);
    case Kind::Subtract:
        return finiteOrMissing(left - right);
    case Kind::Multiply:
        return finiteOrMissing(left * right);
    default:
        return right == 0.0 ? RuleValue() : finiteOrMissing(left / right);
    }
}

bool isComparison(Kind kind)
{
    return kind >= Kind::Equal && kind <= Kind::GreaterEqual;
}

} // namespace

int RuleTree::add(const RuleNode &node)
{
    m_nodes.push_back(node);
    return static_cast<int>(m_nodes.size()) - 1;
}

const RuleNode &RuleTree::node(int index) const
{
    return m_nodes[static_cast<std::size_t>(index)];
}

void RuleTree::setRoot(int index)
{
    m_root = index;
}

bool RuleTree::isEmpty() const
{
    return m_root < 0;
}

RuleValue RuleTree::evaluate(const Reader &reader) const
{
    return isEmpty() ? RuleValue() : valueOf(m_root, reader);
}

bool RuleTree::holds(const Reader &reader) const
{
    return !isEmpty() && isTrue(m_root, reader);
}

QVector<int> RuleTree::rows() const
{
    QVector<int> result;
    for (const RuleNode &node : m_nodes) {
        if (node.kind == Kind::Operand && !result.contains(node.operand.row))
            result.append(node.operand.row);
    }
    return result;
}

RuleValue RuleTree::valueOf(int index, const Reader &reader) const
{
    const RuleNode &self = node(index);
    if (self.kind == Kind::Constant)
        return self.constant;
    if (self.kind == Kind::Operand)
        return reader(self.operand);
    if (self.kind == Kind::Not)
        return !isTrue(self.left, reader);
    if (self.kind == Kind::And)
        return isTrue(self.left, reader) && isTrue(self.right, reader);
    if (self.kind == Kind::Or)
        return isTrue(self.left, reader) || isTrue(self.right, reader);
    if (self.kind == Kind::Among)
        return isAmong(self, reader);

    const RuleValue left = valueOf(self.left, reader);
    if (self.kind == Kind::Negate) {
        const auto *const number = std::get_if<double>(&left);
        return number ? RuleValue(-*number) : RuleValue();
    }
    const RuleValue right = valueOf(self.right, reader);
    if (isComparison(self.kind))
        return compare(self.kind, left, right);
    const auto *const leftNumber = std::get_if<double>(&left);
    const auto *const rightNumber = std::get_if<double>(&right);
    return leftNumber && rightNumber ? calculate(self.kind, *leftNumber, *rightNumber)
                                     : RuleValue();
}

/// The value is found out once for all candidates: lists within lists would take for ever otherwise.
bool RuleTree::isAmong(const RuleNode &self, const Reader &reader) const
{
    const RuleValue value = valueOf(self.left, reader);
    for (int candidate = self.right; candidate >= 0; candidate = node(candidate).right) {
        if (compare(Kind::Equal, value, valueOf(node(candidate).left, reader)))
            return true;
    }
    return false;
}

bool RuleTree::isTrue(int index, const Reader &reader) const
{
    const RuleValue value = valueOf(index, reader);
    const auto *const truth = std::get_if<bool>(&value);
    return truth && *truth;
}

} // namespace Tessark::PropertyHost
