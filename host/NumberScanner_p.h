#pragma once

#include <QString>

#include <optional>

namespace Tessark::PropertyHost {

/// Reads the parts of an expression that a user types, one after the other. Digits and signs of any
/// script count, and the signs that printers use for minus, times and divided by.
class NumberScanner
{
public:
    explicit NumberScanner(const QString &text);

    /// Where the next part begins, blanks passed over.
    int position();
    bool isAtEnd() { return position() >= size(); }

    bool take(char sign);

    /// Takes a word or unit if it stands here as a whole.
    bool takeText(const QString &text);

    /// A number with either decimal mark. Nothing, and not taken, if what stands here is none.
    std::optional<double> takeNumber();

    /// Letters, digits and underscores joined by points, or whatever stands between backquotes; an
    /// empty text if no name stands here.
    QString takeName();

    bool isNumberNext();

    /// What stands here, as a message tells it: all of a number or word, else one character.
    QString nextPart();

private:
    int size() const { return static_cast<int>(m_text.size()); }
    QChar at(int position) const; // as its plain equivalent
    int numberEnd(int start) const;
    int nameEnd(int start) const;

    QString m_text;
    int m_position = 0;
};

} // namespace Tessark::PropertyHost
