#pragma once

#include "divisions/create_division_frm.h"
#include "overview/scenario_data.h"
#include "platform/code_page.h"
#include "shell/commands.h"
#include "shell/main_menu.h"
#include "store/force_sizes.h"
#include "windows/save_fixture.h"

#include <QAction>

namespace torvane::testing {

/// Runs that load scenarios from files.
class LoadedScenarios : public SavedScenarios
{
protected:
    /// Chooses Load, and in its box this file, or none.
    void choose(const std::optional<QString>& answer)
    {
        script.fileBoxes.answers = {answer};
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuLoad")));
    }
    void put(const QByteArray& bytes, const QString& name = QStringLiteral("loaded.scn")) const
    {
        QFile file(scenario(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    void load(const QByteArray& bytes)
    {
        put(bytes);
        choose(scenario(QStringLiteral("loaded.scn")));
    }
    void cancelOverview() { click(button("CmdCancel")); }

    /// A whole scenario section: these lines, and what a new scenario has for the rest.
    static QByteArray data(const QByteArrayList& lines)
    {
        QByteArray bytes = "[SCENARIODATA]\r\n" + lines.join("\r\n") + "\r\n";
        for (const auto& [key, value] :
             encodeScenario(scenarioDefaults(Language::English), Language::English)) {
            // Of two lines of one key the first counts.
            bytes += toCodePage(key) + '=' + toCodePage(value) + "\r\n";
        }
        return bytes;
    }
    static QByteArray division(int n, const QByteArray& side, const QByteArray& ship = {})
    {
        const QByteArray number = QByteArray::number(n);
        QByteArray bytes = "[DIVISION" + number + "]\r\nDIVISIONNAME=Division " + number +
                           "\r\nSIDE=" + side + "\r\nFORMATION=Column\r\nFORMATIONSPACING=914.4\r\n";
        if (!ship.isEmpty()) {
            bytes += "[DIVISION" + number + "SHIP0]\r\nNAME=" + ship +
                     "\r\nTYPE=DD\r\nYARDSXPOSITION=1000\r\nYARDSZPOSITION=-200\r\n";
        }
        return bytes;
    }
    /// A division a side.
    static QByteArray narvik()
    {
        return data({"TITLE=Narvik", "BATTLETYPE=0", "BLUE_FORCE_TYPE=0"}) +
               "[SCENARIOINFO]\r\nDIVISIONCNT=2\r\n" + division(0, "Blue", "Cossack") +
               division(1, "Red", "Z 1");
    }
    void expectNarvik()
    {
        EXPECT_TRUE(overview().isVisible());
        EXPECT_FALSE(main().isInputEnabled());
        EXPECT_EQ(overview().title(), QStringLiteral("Narvik"));
        EXPECT_EQ(editor().workingProfile().GetIniKey(u"DIVISION1SHIP0", u"NAME"), QStringLiteral("Z 1"));
        EXPECT_EQ(workNames(),
                  (QStringList{QStringLiteral("DivDataA1.txt"), QStringLiteral("DivDataB1.txt"),
                               QStringLiteral("DivisionA1.txt"), QStringLiteral("DivisionB1.txt"),
                               QStringLiteral("ScenarioData.mdb"), QStringLiteral("ShipTrack.bmm"),
                               QStringLiteral("iniTemp.bmm")}));
        EXPECT_EQ(workBytes(QStringLiteral("ShipTrack.bmm")), "\"Cossack\"\r\n\"Z 1\"\r\n");
        expectNothingUnderWay();
    }

    QAction* entry(const QString& name) { return main().menu().action(name); }
    bool isEnabled(const char* name) { return entry(QLatin1StringView(name))->isEnabled(); }
    /// The numbers of the visible Edit entries of a side; empty if they differ from its Reposition entries.
    QList<int> shownDivisions(bool forceA)
    {
        QList<int> numbers;
        for (int number = 1; number <= divisionsPerSide; ++number) {
            const bool edit = entry(editEntryName(forceA, number))->isVisible();
            if (edit != entry(QLatin1StringView(repositionRow(forceA, number).entry))->isVisible()) {
                return {};
            }
            if (edit) {
                numbers.append(number);
            }
        }
        return numbers;
    }
    /// Every entry of the main menu with its caption, and whether it is enabled and visible.
    QStringList menuState()
    {
        QStringList state;
        for (const MenuRow& row : menuRows()) {
            const QAction* action = entry(row.name);
            state << QStringLiteral("%1 %2 %3 %4")
                         .arg(row.name, action->text())
                         .arg(action->isEnabled())
                         .arg(action->isVisible());
        }
        return state;
    }
    QList<int> newFlags()
    {
        return {valueOf(overview().ChknewFlag), valueOf(editor().createDivisionFrm().ChknewBlueFlag),
                valueOf(editor().createDivisionFrm().ChknewRedFlag)};
    }
};

} // namespace torvane::testing
