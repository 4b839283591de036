#pragma once

#include <QString>

namespace Tessark::PropertyHost {

/// One word, number, text or sign of a rule.
struct RuleToken
{
    enum class Kind { End, Name, QuotedName, Number, Text, Sign, Bad };

    Kind kind = Kind::End;
    QString text;        // the name, the content of a text, the sign, or what is wrong
    double number = 0.0; // of a Number
    int position = 0;
};

/// Cuts a rule into its tokens, one after the other.
class RuleLexer
{
public:
    explicit RuleLexer(const QString &text);

    RuleToken next();

private:
    RuleToken readName();
    RuleToken readNumber();
    RuleToken readQuoted(QChar quote, RuleToken::Kind kind);
    RuleToken readSign();
    QChar at(int position) const;

    QString m_text;
    int m_position = 0;
};

} // namespace Tessark::PropertyHost
