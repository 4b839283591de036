#pragma once

#include "host/PanelRows_p.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

namespace Tessark::PropertyHost {

/// Paints the words of a search behind the labels of rows that match, and behind the texts of check
/// boxes. The widgets stay as the host knows them; what was painted goes with this object.
class SearchHighlight final : public QObject
{
public:
    SearchHighlight(std::shared_ptr<const PanelRows> rows, QWidget *panel);
    ~SearchHighlight() override;

    /// Words as of searchWords(), for these rows.
    void show(const QStringList &words, const QVector<int> &rows);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watch(int row);
    void update() const;

    std::shared_ptr<const PanelRows> m_rows;
    QPointer<QWidget> m_panel;
    QStringList m_words;
    std::vector<bool> m_isWatched; // by row
    std::vector<bool> m_isMatch;
    QVector<int> m_matches;
};

} // namespace Tessark::PropertyHost
