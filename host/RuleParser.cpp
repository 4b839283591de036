#include "host/RuleParser_p.h"

#include "host/Messages_p.h"
#include "host/RuleLexer_p.h"
#include "host/RuleNames_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

namespace Tessark::PropertyHost {

namespace {

using Kind = RuleNode::Kind;

struct Operator
{
    const char *sign;
    Kind kind;
};

constexpr Operator kComparisons[] = {
    {"==", Kind::Equal},     {"!=", Kind::NotEqual}, {"<", Kind::Less},
    {"<=", Kind::LessEqual}, {">", Kind::Greater},   {">=", Kind::GreaterEqual},
};
constexpr Operator kSums[] = {{"+", Kind::Add}, {"-", Kind::Subtract}};
constexpr Operator kProducts[] = {{"*", Kind::Multiply}, {"/", Kind::Divide}};

QString typeName(RuleType type)
{
    switch (type) {
    case RuleType::Boolean:
        return Messages::tr("a truth value");
    case RuleType::Number:
        return Messages::tr("a number");
    case RuleType::Text:
        return Messages::tr("a text");
    case RuleType::Numbers:
        return Messages::tr("a value of several parts");
    case RuleType::Any:
        break;
    }
    return Messages::tr("a value");
}

bool isReserved(const QString &word)
{
    static const QStringList s_words{QStringLiteral("and"),  QStringLiteral("or"),
                                     QStringLiteral("not"),  QStringLiteral("in"),
                                     QStringLiteral("true"), QStringLiteral("false")};
    return s_words.contains(word);
}

QString unknownComponent(const PropertyUI::Property &property, const QString &component,
                         const QStringList &components)
{
    const QString guess = suggestion(component, components);
    if (!guess.isEmpty())
        return Messages::tr("%1 has no component %2%3")
            .arg(quoted(property.name), quoted(component), guess);
    return Messages::tr("%1 has no component %2, but %3")
        .arg(quoted(property.name), quoted(component), components.join(QLatin1String(", ")));
}

/// An operation with the place where its text starts.
struct Term
{
    int node = -1;
    int position = 0;
};

/// Descends through the levels of the language, from "or" to single values. After a mistake every
/// function returns at once; the first mistake is the one that is told.
class Parser final
{
public:
    Parser(const QString &text, const RuleNames &names)
        : m_names(names)
        , m_lexer(text)
        , m_token(m_lexer.next())
    {
    }

    Term parse();
    std::optional<RuleTree> finish(const Term &term, RuleError &error);
    const RuleNode &node(const Term &term) const { return m_tree.node(term.node); }
    void require(const Term &term, RuleType type);
    void fail(int position, const QString &message);
    bool hasFailed() const { return m_error.has_value(); }

private:
    Term parseOr();
    Term parseAnd();
    Term parseNot();
    Term parseComparison();
    Term parseMembership(const Term &value, bool negated);
    Term parseCandidate(const Term &value, const Term &others);
    template <std::size_t N>
    Term parseChain(const Operator (&operators)[N], Term (Parser::*next)());
    Term parseSum() { return parseChain(kSums, &Parser::parseProduct); }
    Term parseProduct() { return parseChain(kProducts, &Parser::parseSign); }
    Term parseSign();
    Term parseValue();
    Term parseParenthesis();
    Term parseName();
    Term parseQuotedName();
    Term makeOperand(int row, const QString &component, int position);

    Term add(Kind kind, RuleType type, const Term &left, const Term &right, int position);
    Term addConstant(const RuleValue &value, RuleType type);
    Term addComparison(Kind kind, const Term &left, const Term &right);
    void checkComparison(Kind kind, const Term &left, const Term &right);
    void checkChoice(const Term &operand, const Term &constant);
    bool refuseWhole(const Term &term);

    void advance() { m_token = m_lexer.next(); }
    bool isSign(const char *sign) const;
    bool isWord(const char *word) const;
    bool take(bool isThere);
    void expectSign(const char *sign);
    void failAtToken();
    bool descend();

    const RuleNames &m_names;
    RuleLexer m_lexer;
    RuleToken m_token;
    RuleTree m_tree;
    std::optional<RuleError> m_error;
    int m_depth = 0;
};

Term Parser::parse()
{
    const Term term = parseOr();
    if (!hasFailed() && m_token.kind != RuleToken::Kind::End)
        failAtToken();
    return term;
}

std::optional<RuleTree> Parser::finish(const Term &term, RuleError &error)
{
    if (hasFailed()) {
        error = *m_error;
        return std::nullopt;
    }
    m_tree.setRoot(term.node);
    return m_tree;
}

Term Parser::parseOr()
{
    Term left = parseAnd();
    while (!hasFailed() && take(isWord("or") || isSign("||"))) {
        const Term right = parseAnd();
        require(left, RuleType::Boolean);
        require(right, RuleType::Boolean);
        left = add(Kind::Or, RuleType::Boolean, left, right, left.position);
    }
    return left;
}

Term Parser::parseAnd()
{
    Term left = parseNot();
    while (!hasFailed() && take(isWord("and") || isSign("&&"))) {
        const Term right = parseNot();
        require(left, RuleType::Boolean);
        require(right, RuleType::Boolean);
        left = add(Kind::And, RuleType::Boolean, left, right, left.position);
    }
    return left;
}

Term Parser::parseNot()
{
    const int position = m_token.position;
    if (!take(isWord("not") || isSign("!")))
        return parseComparison();
    if (!descend())
        return {};
    const Term term = parseNot();
    --m_depth;
    require(term, RuleType::Boolean);
    return add(Kind::Not, RuleType::Boolean, term, {}, position);
}

Term Parser::parseComparison()
{
    const Term left = parseSum();
    for (const Operator &comparison : kComparisons) {
        if (!hasFailed() && take(isSign(comparison.sign)))
            return addComparison(comparison.kind, left, parseSum());
    }
    if (!hasFailed() && take(isWord("in")))
        return parseMembership(left, false);
    if (!hasFailed() && take(isWord("not"))) {
        if (take(isWord("in")))
            return parseMembership(left, true);
        failAtToken();
    }
    return left;
}

Term Parser::parseMembership(const Term &value, bool negated)
{
    expectSign("[");
    Term candidates = parseCandidate(value, {});
    while (!hasFailed() && take(isSign(",")))
        candidates = parseCandidate(value, candidates);
    expectSign("]");
    const Term result = add(Kind::Among, RuleType::Boolean, value, candidates, value.position);
    return negated ? add(Kind::Not, RuleType::Boolean, result, {}, value.position) : result;
}

/// What the value may be equal to, with the same mistakes as a comparison.
Term Parser::parseCandidate(const Term &value, const Term &others)
{
    const Term candidate = parseSum();
    if (!hasFailed())
        checkComparison(Kind::Equal, value, candidate);
    return add(Kind::Candidate, RuleType::Boolean, candidate, others, candidate.position);
}

template <std::size_t N>
Term Parser::parseChain(const Operator (&operators)[N], Term (Parser::*next)())
{
    Term left = (this->*next)();
    for (std::size_t i = 0; !hasFailed() && i < N;) {
        if (!take(isSign(operators[i].sign))) {
            ++i;
            continue;
        }
        const Term right = (this->*next)();
        require(left, RuleType::Number);
        require(right, RuleType::Number);
        left = add(operators[i].kind, RuleType::Number, left, right, left.position);
        i = 0;
    }
    return left;
}

Term Parser::parseSign()
{
    const int position = m_token.position;
    if (!take(isSign("-")))
        return parseValue();
    if (!descend())
        return {};
    const Term term = parseSign();
    --m_depth;
    require(term, RuleType::Number);
    return add(Kind::Negate, RuleType::Number, term, {}, position);
}

Term Parser::parseValue()
{
    switch (m_token.kind) {
    case RuleToken::Kind::Number:
        return addConstant(m_token.number, RuleType::Number);
    case RuleToken::Kind::Text:
        return addConstant(m_token.text, RuleType::Text);
    case RuleToken::Kind::QuotedName:
        return parseQuotedName();
    case RuleToken::Kind::Name:
        return parseName();
    default:
        return parseParenthesis();
    }
}

Term Parser::parseParenthesis()
{
    if (!take(isSign("("))) {
        failAtToken();
        return {};
    }
    if (!descend())
        return {};
    const Term term = parseOr();
    --m_depth;
    expectSign(")");
    return term;
}

Term Parser::parseName()
{
    if (isWord("true") || isWord("false"))
        return addConstant(isWord("true"), RuleType::Boolean);
    if (isReserved(m_token.text)) {
        failAtToken();
        return {};
    }
    const RuleToken token = m_token;
    advance();
    const int whole = m_names.find(token.text);
    if (whole >= 0)
        return makeOperand(whole, QString(), token.position);
    // Names may have points of their own, so only what is behind the last one can be a component.
    const auto point = token.text.lastIndexOf(QLatin1Char('.'));
    const int row = point > 0 ? m_names.find(token.text.left(point)) : -1;
    if (row >= 0)
        return makeOperand(row, token.text.mid(point + 1), token.position);
    fail(token.position, Messages::tr("there is no property %1%2")
                             .arg(quoted(token.text), m_names.suggest(token.text)));
    return {};
}

Term Parser::parseQuotedName()
{
    const RuleToken name = m_token;
    advance();
    QString component;
    if (take(isSign("."))) {
        component = m_token.text;
        if (!take(m_token.kind == RuleToken::Kind::Name)) {
            failAtToken();
            return {};
        }
    }
    const int row = m_names.find(name.text);
    if (row >= 0)
        return makeOperand(row, component, name.position);
    fail(name.position, Messages::tr("there is no property %1%2")
                            .arg(quoted(name.text), m_names.suggest(name.text)));
    return {};
}

Term Parser::makeOperand(int row, const QString &component, int position)
{
    const PropertyUI::Property &property = m_names.property(row);
    const ValueKind kind = typeTraits(property.type).kind;
    const QStringList components = componentNames(kind);
    const bool isReadable =
        carriesValue(property.type) && kind != ValueKind::Matrix && kind != ValueKind::Picture;
    RuleNode operand;
    operand.kind = Kind::Operand;
    operand.operand.row = row;
    operand.operand.component = static_cast<int>(components.indexOf(component));
    if (!isReadable) {
        fail(position, Messages::tr("rules cannot read %1, which is of type %2")
                           .arg(quoted(property.name), quoted(property.type)));
    } else if (!component.isEmpty() && components.isEmpty()) {
        fail(position, Messages::tr("%1 has no components").arg(quoted(property.name)));
    } else if (!component.isEmpty() && operand.operand.component < 0) {
        fail(position, unknownComponent(property, component, components));
    }
    if (hasFailed())
        return {};
    operand.type = m_names.typeOf(operand.operand);
    return {m_tree.add(operand), position};
}

Term Parser::add(Kind kind, RuleType type, const Term &left, const Term &right, int position)
{
    RuleNode result;
    result.kind = kind;
    result.type = type;
    result.left = left.node;
    result.right = right.node;
    return {m_tree.add(result), position};
}

Term Parser::addConstant(const RuleValue &value, RuleType type)
{
    RuleNode constant;
    constant.type = type;
    constant.constant = value;
    const Term term{m_tree.add(constant), m_token.position};
    advance();
    return term;
}

Term Parser::addComparison(Kind kind, const Term &left, const Term &right)
{
    if (!hasFailed())
        checkComparison(kind, left, right);
    return add(kind, RuleType::Boolean, left, right, left.position);
}

void Parser::checkComparison(Kind kind, const Term &left, const Term &right)
{
    if (refuseWhole(left) || refuseWhole(right))
        return;
    if (kind != Kind::Equal && kind != Kind::NotEqual) {
        require(left, RuleType::Number);
        require(right, RuleType::Number);
        return;
    }
    if (node(left).type != RuleType::Any)
        require(right, node(left).type);
    checkChoice(left, right);
    checkChoice(right, left);
}

void Parser::checkChoice(const Term &operand, const Term &constant)
{
    if (node(operand).kind != Kind::Operand || node(constant).kind != Kind::Constant)
        return;
    const QString objection = m_names.objection(node(operand).operand.row, node(constant).constant);
    if (!objection.isEmpty())
        fail(constant.position, objection);
}

/// A composite value as a whole is nothing to compare or calculate with.
bool Parser::refuseWhole(const Term &term)
{
    if (node(term).type != RuleType::Numbers)
        return false;
    const PropertyUI::Property &property = m_names.property(node(term).operand.row);
    const QStringList components = componentNames(typeTraits(property.type).kind);
    fail(term.position, Messages::tr("%1 has several parts, name one as in %2")
                            .arg(quoted(property.name),
                                 quoted(property.name + QLatin1Char('.') + components.first())));
    return true;
}

void Parser::require(const Term &term, RuleType type)
{
    if (hasFailed() || node(term).type == type || node(term).type == RuleType::Any)
        return;
    if (!refuseWhole(term)) {
        fail(term.position,
             Messages::tr("expected %1, found %2").arg(typeName(type), typeName(node(term).type)));
    }
}

bool Parser::isSign(const char *sign) const
{
    return m_token.kind == RuleToken::Kind::Sign && m_token.text == QLatin1String(sign);
}

bool Parser::isWord(const char *word) const
{
    return m_token.kind == RuleToken::Kind::Name && m_token.text == QLatin1String(word);
}

bool Parser::take(bool isThere)
{
    if (isThere)
        advance();
    return isThere;
}

void Parser::expectSign(const char *sign)
{
    if (hasFailed() || take(isSign(sign)))
        return;
    if (m_token.kind == RuleToken::Kind::Bad)
        failAtToken();
    else
        fail(m_token.position, Messages::tr("%1 is missing").arg(quoted(QLatin1String(sign))));
}

void Parser::failAtToken()
{
    if (m_token.kind == RuleToken::Kind::End)
        fail(m_token.position, Messages::tr("the rule ends too early"));
    else if (m_token.kind == RuleToken::Kind::Bad)
        fail(m_token.position, m_token.text);
    else
        fail(m_token.position, Messages::tr("%1 is not expected").arg(quoted(m_token.text)));
}

void Parser::fail(int position, const QString &message)
{
    if (!hasFailed())
        m_error = RuleError{position, message};
}

bool Parser::descend()
{
    if (++m_depth > kMaximumRuleDepth) {
        fail(m_token.position,
             Messages::tr("a rule may be nested %n deep at most", nullptr, kMaximumRuleDepth));
    }
    return !hasFailed();
}

bool isTooLong(const QString &text, RuleError &error)
{
    if (text.size() <= kMaximumRuleLength)
        return false;
    error = {kMaximumRuleLength,
             Messages::tr("a rule may have %n characters at most", nullptr, kMaximumRuleLength)};
    return true;
}

} // namespace

std::optional<RuleTree> parseCondition(const QString &text, const RuleNames &names,
                                       RuleError &error)
{
    if (isTooLong(text, error))
        return std::nullopt;
    Parser parser(text, names);
    const Term term = parser.parse();
    parser.require(term, RuleType::Boolean);
    return parser.finish(term, error);
}

std::optional<RuleTree> parseBound(const QString &text, const RuleNames &names, int count,
                                   RuleError &error)
{
    if (isTooLong(text, error))
        return std::nullopt;
    Parser parser(text, names);
    const Term term = parser.parse();
    const bool isWhole = !parser.hasFailed() && parser.node(term).type == RuleType::Numbers;
    if (isWhole && count > 0) {
        const int found = names.componentCount(parser.node(term).operand.row);
        if (found != count) {
            parser.fail(term.position,
                        Messages::tr("expected %n numbers, found %1", nullptr, count).arg(found));
        }
    } else {
        parser.require(term, RuleType::Number);
    }
    return parser.finish(term, error);
}

} // namespace Tessark::PropertyHost
