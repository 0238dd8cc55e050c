#pragma once

#include "catalogue/check_ship_data.h"
#include "catalogue/read_ship_data.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace torvane::testing {

/// The text of a catalogue without a fault, to be spoilt in one place. RN has the classes "RN class" (line 2
/// of classes.csv; ships in lines 2 to 424 of ships.csv) and "Oiler", without weapons (line 3; the ship
/// "RN424" in line 425). Every other navy has one class: USN from line 426, KM from 825, IJN from 1023 to
/// 1267.
class CatalogueText
{
public:
    using Table = std::vector<QStringList>; ///< first the header

    CatalogueText()
    {
        addClass("RN class", "RN");
        addClass("Oiler", "RN", false);
        addShips("RN", 423, "RN class");
        ships.push_back({"RN424", "RN424", "DD", "Oiler", "RN", "1935"});
        const std::vector<std::pair<QString, int>> others{{"USN", 399}, {"KM", 198}, {"IJN", 245}};
        for (const auto& [navy, count] : others) {
            addClass(navy + " class", navy);
            addShips(navy, count, navy + " class");
        }
    }

    static void set(Table& table, std::size_t line, const QString& column, const QString& value)
    {
        table.at(line - 1)[table.front().indexOf(column)] = value;
    }

    static void removeLine(Table& table, std::size_t line)
    {
        table.erase(table.begin() + static_cast<std::ptrdiff_t>(line) - 1);
    }

    static void removeColumn(Table& table, const QString& column)
    {
        const qsizetype at = table.front().indexOf(column);
        for (QStringList& row : table) {
            row.removeAt(at);
        }
    }

    static void addColumn(Table& table, const QString& column)
    {
        for (QStringList& row : table) {
            row.append(&row == &table.front() ? column : QStringLiteral("0"));
        }
    }

    ShipDataFiles files() const { return {bytes(ships), bytes(classes), bytes(ranges)}; }

    /// What the checks say of it, a text a fault.
    QStringList faults() const { return faultsOf(files()); }

    static QStringList faultsOf(const ShipDataFiles& files)
    {
        Faults faults;
        checkShipData(parseShipData(files, faults), faults);
        return faults.texts();
    }

    static QByteArray bytes(const Table& table)
    {
        QByteArray text;
        for (const QStringList& row : table) {
            text += row.join(',').toUtf8() + '\n';
        }
        return text;
    }

    Table ships{{"name", "short_name", "type", "class", "navy", "commissioned"}};
    Table classes{{"class",         "navy",           "type",
                   "hull",          "year",           "standard_tons",
                   "length_ft",     "beam_ft",        "speed_kn",
                   "belt_in",       "deck_in",        "main_calibre_in",
                   "main_range_yd", "shells_per_gun", "tur_a",
                   "tur_b",         "tur_c",          "tur_d",
                   "tur_e",         "tur_g",          "tur_h",
                   "tur_i",         "tur_j",          "tur_l",
                   "tur_m",         "tur_n",          "tur_o",
                   "tur_q",         "tur_r",          "tur_t",
                   "tur_u",         "tur_x",          "tur_y",
                   "tur_z",         "sec_calibre_in", "sec_fore",
                   "sec_aft",       "sec_port",       "sec_starboard",
                   "torpedo_in",    "tubes_1",        "tubes_2",
                   "tubes_3",       "tubes_4",        "torpedoes_carried"}};
    Table ranges{{"class", "range_yd"}};

private:
    void addShips(const QString& navy, int count, const QString& className)
    {
        for (int i = 1; i <= count; ++i) {
            const QString name = navy + QString::number(i);
            ships.push_back({name, name, "DD", className, navy, "1935"});
        }
    }

    void addClass(const QString& name, const QString& navy, bool armed = true)
    {
        const QHash<QString, QString> values{{"class", name},
                                             {"navy", navy},
                                             {"type", "DD"},
                                             {"hull", "naval"},
                                             {"year", "1930"},
                                             {"standard_tons", "1400"},
                                             {"length_ft", "320.5"},
                                             {"beam_ft", "33"},
                                             {"speed_kn", "36"},
                                             {"main_calibre_in", "4.7"},
                                             {"main_range_yd", "16000"},
                                             {"shells_per_gun", "200"},
                                             {"tur_a", "1"},
                                             {"tur_y", "1"},
                                             {"sec_calibre_in", "3"},
                                             {"sec_aft", "1"},
                                             {"torpedo_in", "21"},
                                             {"tubes_1", "4"},
                                             {"tubes_2", "4"},
                                             {"torpedoes_carried", "8"}};
        const QStringList unarmed{"class",         "navy",      "type",    "hull",    "year",
                                  "standard_tons", "length_ft", "beam_ft", "speed_kn"};
        QStringList row;
        for (const QString& column : classes.front()) {
            row.append(armed || unarmed.contains(column) ? values.value(column, "0") : QStringLiteral("0"));
        }
        classes.push_back(row);
        if (armed) {
            ranges.push_back({name, "16000"});
        }
    }
};

} // namespace torvane::testing
