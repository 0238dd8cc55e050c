#pragma once

#include "catalogue/read_ship_data.h"
#include "platform/code_page.h"
#include "platform/profile.h"
#include "scenario_file/scenario_format.h"
#include "scenarios/scenario_plan.h"
#include "store/profile_keys.h"
#include "store/working_profile.h"
#include "support/printers.h"

#include <QFile>

#include <gmock/gmock.h>

#include <string>
#include <tuple>

namespace torvane::testing {

inline const std::vector<ScenarioPlan>& plans()
{
    static const std::vector<ScenarioPlan> all = readScenarioPlans(QStringLiteral(SCENARIO_FOLDER));
    return all;
}

inline QString languageFolder(Language language)
{
    return language == Language::German ? QStringLiteral(SCENARIO_FOLDER "/de/")
                                        : QStringLiteral(SCENARIO_FOLDER "/en/");
}

inline QString catalogueDatabase()
{
    return QStringLiteral(STAGED_GAME "/ScenarioEditor/ShipDatabase.mdb");
}

/// The catalogue as its files have it.
inline const CatalogueData& catalogue()
{
    static const CatalogueData data = [] {
        Faults faults;
        return parseShipData(readShipDataFiles(QStringLiteral(CATALOGUE_FOLDER)), faults);
    }();
    return data;
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// A kept scenario of a language: its plan by number, so that adding one needs no change here.
class KeptScenario : public ::testing::TestWithParam<std::tuple<std::size_t, Language>>
{
protected:
    const ScenarioPlan& plan() const { return plans().at(std::get<0>(GetParam())); }
    Language language() const { return std::get<1>(GetParam()); }
    QString path() const
    {
        return languageFolder(language()) + plan().title.in(language()) + scenarioFileSuffix;
    }

    /// A value of the kept file.
    QString value(const QString& section, QStringView key) const
    {
        return fromCodePage(GetIniKey(m_file, toCodePage(section), toCodePage(key)));
    }
    QString data(QStringView key) const { return value(scenarioDataSection.toString(), key); }
    /// Where a ship stands on the map.
    Yards place(int division, int ship) const
    {
        const QString section = shipSection(division, ship);
        return {value(section, u"YARDSXPOSITION").toInt(), -value(section, u"YARDSZPOSITION").toInt()};
    }

private:
    void SetUp() override { m_file = Profile::parse(bytesOf(path())); }

    Profile m_file;
};

inline std::string scenarioName(const ::testing::TestParamInfo<KeptScenario::ParamType>& info)
{
    return plans().at(std::get<0>(info.param)).name.toStdString() +
           (std::get<1>(info.param) == Language::German ? "_German" : "_English");
}

inline auto everyKeptScenario()
{
    return ::testing::Combine(::testing::Range(std::size_t{0}, plans().size()),
                              ::testing::Values(Language::English, Language::German));
}

} // namespace torvane::testing
