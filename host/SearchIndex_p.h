#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Tessark::PropertyHost {

/// The texts of rows, ready to be searched again and again.
class SearchIndex
{
public:
    /// Rows without any text.
    explicit SearchIndex(int rows);

    /// Replaces what is searched of the row.
    void setTexts(int row, const QStringList &texts);

    /// Whether each word of searchWords() is in one of the row's texts. True for no words.
    bool matches(int row, const QStringList &words) const;

private:
    std::vector<QString> m_texts; // of each row, folded
};

} // namespace Tessark::PropertyHost
