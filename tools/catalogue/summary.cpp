#include "catalogue/summary.h"

#include "ship_selection/ship_lists.h"
#include "store/force_sizes.h"

#include <QStringList>

#include <algorithm>

namespace torvane {

namespace {

constexpr qsizetype cellWidth = 6;

/// Ships of a navy and a type; an empty name counts all.
QString count(const CatalogueData& data, const QString& navy, const QString& type)
{
    const auto& ships = data.ships.rows;
    return QString::number(std::count_if(ships.begin(), ships.end(), [&](const Ship& ship) {
        return (navy.isEmpty() || ship.navy == navy) && (type.isEmpty() || ship.type == type);
    }));
}

QString line(const CatalogueData& data, const QString& title, const QString& navy)
{
    QString text = title.leftJustified(cellWidth);
    for (const QLatin1StringView type : shipTypes) {
        text += count(data, navy, type).rightJustified(cellWidth);
    }
    return text + count(data, navy, QString()).rightJustified(cellWidth) + u'\n';
}

} // namespace

QString catalogueSummary(const CatalogueData& data)
{
    QString text = QStringLiteral("navy").leftJustified(cellWidth);
    for (const QLatin1StringView type : shipTypes) {
        text += QString(type).rightJustified(cellWidth);
    }
    text += QStringLiteral("all").rightJustified(cellWidth) + u'\n';
    for (const ListedNavy& navy : listedNavies) {
        text += line(data, navy.code, navy.code);
    }
    return text + line(data, QStringLiteral("all"), QString());
}

} // namespace torvane
