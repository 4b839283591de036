#include "host/PanelState_p.h"

#include <QJsonArray>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr int kStateVersion = 1;
constexpr int kLargestLabelWidth = 10000;

const QLatin1String kVersion("version");
const QLatin1String kGroups("groups");
const QLatin1String kTabs("tabs");
const QLatin1String kTab("tab");
const QLatin1String kPlace("place");
const QLatin1String kOffset("offset");
const QLatin1String kFocus("focus");
const QLatin1String kControl("control");
const QLatin1String kRow("row");
const QLatin1String kIndex("index");
const QLatin1String kLabelWidth("labelWidth");

/// The entries of newer in front; those behind them are of rows that are not there now.
template <typename T>
void updateEntries(QMap<QString, QVector<T>> &entries, const QMap<QString, QVector<T>> &newer)
{
    for (auto it = newer.cbegin(); it != newer.cend(); ++it)
        entries[it.key()] = it.value() + entries.value(it.key()).mid(it.value().size());
}

QJsonObject rowToJson(const RowName &row)
{
    return {{kRow, row.name}, {kIndex, row.index}};
}

RowName rowFromJson(const QJsonObject &json)
{
    return {json.value(kRow).toString(), json.value(kIndex).toInt()};
}

} // namespace

void PanelState::update(const PanelState &newer)
{
    updateEntries(openGroups, newer.openGroups);
    updateEntries(currentTabs, newer.currentTabs);
    place = newer.place;
    focus = newer.focus;
    labelWidth = newer.labelWidth;
}

QJsonObject PanelState::toJson() const
{
    QJsonObject groups;
    for (auto it = openGroups.cbegin(); it != openGroups.cend(); ++it) {
        QJsonArray array;
        for (const bool open : it.value())
            array.append(open);
        groups.insert(it.key(), array);
    }
    QJsonObject tabs;
    for (auto it = currentTabs.cbegin(); it != currentTabs.cend(); ++it) {
        QJsonArray array;
        for (const Tab &tab : it.value())
            array.append(QJsonObject{{kTab, tab.name}, {kIndex, tab.index}});
        tabs.insert(it.key(), array);
    }
    QJsonObject json{{kVersion, kStateVersion}, {kGroups, groups}, {kTabs, tabs}};
    if (place) {
        QJsonObject object = rowToJson(place->row);
        object.insert(kOffset, place->offset);
        json.insert(kPlace, object);
    }
    if (focus) {
        QJsonObject object = rowToJson(focus->row);
        object.insert(kControl, focus->control);
        json.insert(kFocus, object);
    }
    if (labelWidth)
        json.insert(kLabelWidth, *labelWidth);
    return json;
}

std::optional<PanelState> PanelState::fromJson(const QJsonObject &json)
{
    if (json.value(kVersion).toInt() != kStateVersion)
        return std::nullopt;
    PanelState state;
    const QJsonObject groups = json.value(kGroups).toObject();
    for (auto it = groups.begin(); it != groups.end(); ++it) {
        for (const auto &open : it.value().toArray())
            state.openGroups[it.key()].append(open.toBool(true));
    }
    const QJsonObject tabs = json.value(kTabs).toObject();
    for (auto it = tabs.begin(); it != tabs.end(); ++it) {
        for (const auto &value : it.value().toArray()) {
            const QJsonObject tab = value.toObject();
            state.currentTabs[it.key()].append(
                {tab.value(kTab).toString(), tab.value(kIndex).toInt()});
        }
    }
    if (const QJsonObject place = json.value(kPlace).toObject(); !place.isEmpty())
        state.place = Place{rowFromJson(place), place.value(kOffset).toInt()};
    if (const QJsonObject focus = json.value(kFocus).toObject(); !focus.isEmpty())
        state.focus = Focus{rowFromJson(focus), focus.value(kControl).toInt()};
    if (const QJsonValue width = json.value(kLabelWidth); width.isDouble())
        state.labelWidth = std::clamp(width.toInt(), 0, kLargestLabelWidth);
    return state;
}

} // namespace Tessark::PropertyHost
