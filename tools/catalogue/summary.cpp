#include "catalogue/summary.h"

#include <QStringList>

#include <algorithm>

namespace torvane {

namespace {

constexpr qsizetype cellWidth = 6;

/// Ships of a navy and a type; an empty name counts all.
QString count(const ShipData& data, const QString& navy, const QString& type)
{
    const auto& ships = data.ships.rows;
    return QString::number(std::count_if(ships.begin(), ships.end(), [&](const Ship& ship) {
        return (navy.isEmpty() || ship.navy == navy) && (type.isEmpty() || ship.type == type);
    }));
}

QString line(const ShipData& data, const QString& title, const QString& navy)
{
    QString text = title.leftJustified(cellWidth);
    for (const QLatin1StringView type : shipTypes) {
        text += count(data, navy, type).rightJustified(cellWidth);
    }
    return text + count(data, navy, QString()).rightJustified(cellWidth) + u'\n';
}

} // namespace

QString catalogueSummary(const ShipData& data)
{
    QString text = QStringLiteral("navy").leftJustified(cellWidth);
    for (const QLatin1StringView type : shipTypes) {
        text += QString(type).rightJustified(cellWidth);
    }
    text += QStringLiteral("all").rightJustified(cellWidth) + u'\n';
    for (const NavySize& size : navySizes) {
        text += line(data, size.navy, size.navy);
    }
    return text + line(data, QStringLiteral("all"), QString());
}

} // namespace torvane
