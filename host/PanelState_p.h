#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVector>

#include <optional>

namespace Tessark::PropertyHost {

/// A row by what the host calls it: the name of its property, or the label where there is no name.
/// Rows that are called the same are counted in panel order.
struct RowName
{
    QString name;
    int index = 0;

    friend bool operator==(const RowName &left, const RowName &right)
    {
        return left.name == right.name && left.index == right.index;
    }
};

/**
 * What a user has arranged in a panel, by names of rows: open groups, current tabs, the place that is
 * scrolled to, the focus and the width of the label column. It speaks of rows that a panel has had,
 * too, so that these find themselves as they were when they come back.
 */
struct PanelState
{
    struct Tab
    {
        QString name;
        int index = 0; // in the tab group
    };
    struct Place
    {
        RowName row;
        int offset = 0; // of the row's upper edge above the view's, in pixels
    };
    struct Focus
    {
        RowName row;
        int control = 0; // counted inside the row's field
    };

    QMap<QString, QVector<bool>> openGroups; // of those that are called the same, in order
    QMap<QString, QVector<Tab>> currentTabs;
    std::optional<Place> place;
    std::optional<Focus> focus;
    std::optional<int> labelWidth; // automatic if absent

    /// Takes over what newer knows; keeps what only this knows of groups and tabs.
    void update(const PanelState &newer);

    QJsonObject toJson() const;

    /// What is missing or of another kind is as in a new state; nothing for another version.
    static std::optional<PanelState> fromJson(const QJsonObject &json);
};

} // namespace Tessark::PropertyHost
