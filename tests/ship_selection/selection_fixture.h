#pragma once

#include "catalogue_fixture.h"

namespace torvane::testing {

/// The picks of a division over a small catalogue, in a scenario just made.
class SelectionFixture : public ShipListsFixture
{
protected:
    SelectionFixture() { setTrack({""}); }

    /// Opens the dialog's lists over this catalogue, filtered by a navy.
    void useCatalogue(const QList<TestShip>& ships, const QString& navy = "RN")
    {
        browser.setLists(listsOf(ships));
        browser.filterNavy(navy);
    }
    void open(Side side = Side::Blue, int number = 1)
    {
        selection.open(side, "Division " + QString::number(number), "Division");
    }
    std::optional<SelectionMessage> pick(const QString& name) { return selection.pick(rowOf(browser, name)); }
    void pickAll(const QStringList& names)
    {
        for (const QString& name : names) {
            EXPECT_EQ(pick(name), std::nullopt) << name.toStdString();
        }
    }
    std::optional<SelectionMessage> remove(int index)
    {
        selection.select(index);
        return selection.remove();
    }

    /// A Division file of so many ships that no catalogue knows.
    void putDivision(Side side, int number, int ships)
    {
        QStringList lines;
        for (int i = 0; i < ships; ++i) {
            lines.append("DD other " + QString(wordOf(side)) + QString::number(number * 100 + i));
        }
        files.write(files.divisionFile(side, number), lines);
    }
    QStringList division(Side side, int number) { return files.read(files.divisionFile(side, number)); }
    void setTrack(const QStringList& names) { files.write(files.shipTrack(), names); }
    QStringList track() { return files.read(files.shipTrack()); }
    void setTransport(const QString& transports, const QString& blueForceType)
    {
        profile.write(u"SCENARIODATA", u"DDTRANSPORTS", transports);
        profile.write(u"SCENARIODATA", u"BLUE_FORCE_TYPE", blueForceType);
    }

    ShipBrowser browser;
    ShipSelection selection{files, profile, records, browser};
};

} // namespace torvane::testing
