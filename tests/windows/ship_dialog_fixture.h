#pragma once

#include "divisions/create_division_frm.h"
#include "ship_selection/ship_dbase_frm.h"
#include "support/catalogue_file.h"
#include "windows/overview_fixture.h"

#include <QListWidget>
#include <QRadioButton>
#include <QTableView>

namespace torvane::testing {

/// A run with a scenario just made and a ship dialog over a small catalogue, worked as a user works it.
class ShipDialog : public Dialogs
{
protected:
    struct Ship
    {
        const char* type;
        const char* name;
        const char* shipClass;
        const char* navy;
        const char* hitPts;
    };

    void putCatalogue(const QList<Ship>& ships) const
    {
        QFile::remove(workFile("ShipDatabase.mdb"));
        CatalogueFile file(workFile("ShipDatabase.mdb"));
        file.run("BEGIN");
        for (const Ship& ship : ships) {
            file.addShip(ship.name, ship.name, ship.type, ship.shipClass, ship.navy);
            file.run("UPDATE ShipDataB SET HitPts = '" + QString(ship.hitPts) +
                     "' WHERE rowid = last_insert_rowid()");
        }
        file.addClass("K1");
        file.addClass("K2");
        file.run("COMMIT");
    }
    /// Twelve ships of the Royal Navy, out of every order, and two of each other navy.
    void putUsualCatalogue() const
    {
        putCatalogue({{"DD", "Cossack", "K2", "RN", "20"},
                      {"BB", "Warspite", "K1", "RN", "100"},
                      {"DD", "Ardent", "K2", "RN", "3"},
                      {"CA", "Exeter", "K1", "RN", "30"},
                      {"DD", "Duncan", "K2", "RN", "19"},
                      {"DD", "Electra", "K2", "RN", "18"},
                      {"DD", "Fury", "K2", "RN", "17"},
                      {"DD", "Glowworm", "K2", "RN", "16"},
                      {"DD", "Hotspur", "K2", "RN", "15"},
                      {"DD", "Icarus", "K2", "RN", "14"},
                      {"DD", "Jackal", "K2", "RN", "13"},
                      {"TR", "Olynthus", "K1", "RN", "12"},
                      {"DD", "Laffey", "K2", "USN", "1"},
                      {"DD", "Benson", "K2", "USN", "1"},
                      {"DD", "Z2", "K2", "KM", "1"},
                      {"BB", "Bismarck", "K1", "KM", "1"},
                      {"DD", "Yukikaze", "K2", "IJN", "1"},
                      {"BB", "Yamato", "K1", "IJN", "1"}});
    }

    /// A scenario just made, with its overview saved.
    void newScenario(Language language = Language::English)
    {
        openNew(language);
        saveOverview();
        boxes().clear();
    }
    /// What the division dialog shows when it opens the ship dialog.
    void setDivision(const char* sideLabel = "Force A (Blue)", int number = 1,
                     const char* forceNavy = "Royal Navy (RN)")
    {
        dialog().lblside->setText(sideLabel);
        dialog().lblForceSide->setText(forceNavy);
        divisionLabel()->setText((editor().german() ? "Verband " : "Division ") + QString::number(number));
    }
    void showShips()
    {
        dialog().setInputEnabled(false);
        ships().showForm(&main());
        settle();
        ASSERT_TRUE(ships().isVisible());
    }
    /// Opens the ship dialog for the first division of Force A, a Royal Navy force.
    void openShips(Language language = Language::English)
    {
        putUsualCatalogue();
        newScenario(language);
        setDivision();
        showShips();
    }

    CreateDivisionFrm& dialog() { return editor().createDivisionFrm(); }
    ShipDBaseFrm& ships() { return editor().shipDBaseFrm(); }
    QLabel* divisionLabel() { return control<QLabel>(dialog(), "lblDivName"); }
    QTableView* grid() { return control<QTableView>(ships(), "Grid1"); }
    QListWidget* division() { return control<QListWidget>(ships(), "LstDivision"); }
    QPushButton* shipButton(const char* name) { return control<QPushButton>(ships(), name); }
    QRadioButton* option(const char* name) { return control<QRadioButton>(ships(), name); }
    QString count(const char* name) { return control<QLabel>(ships(), name)->text(); }

    QString cell(int row, int column) { return grid()->model()->index(row, column).data().toString(); }
    QStringList names()
    {
        QStringList found;
        for (int row = 0; row < grid()->model()->rowCount(); ++row) {
            found.append(cell(row, 2));
        }
        return found;
    }
    QStringList marked()
    {
        QStringList found;
        for (int row = 0; row < grid()->model()->rowCount(); ++row) {
            if (cell(row, 0) == "  *   --->") {
                found.append(cell(row, 2));
            }
        }
        return found;
    }
    QStringList listed()
    {
        QStringList found;
        for (int row = 0; row < division()->count(); ++row) {
            found.append(division()->item(row)->text());
        }
        return found;
    }
    QPoint placeOf(const QString& name, int column = 2)
    {
        const int row = static_cast<int>(names().indexOf(name));
        EXPECT_GE(row, 0) << name.toStdString();
        grid()->scrollTo(grid()->model()->index(row, column));
        return grid()->visualRect(grid()->model()->index(row, column)).center();
    }
    void clickShip(const QString& name, int column = 2)
    {
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, placeOf(name, column));
        settle();
    }
    void clickLine(int row)
    {
        QTest::mouseClick(division()->viewport(), Qt::LeftButton, {},
                          division()->visualItemRect(division()->item(row)).center());
        settle();
    }
    /// A click on an option's own circle and words.
    void choose(const char* name) { click(option(name)); }

    QStringList lines(const char* name) const
    {
        return parseQuotedLines(workBytes(QString::fromLatin1(name)));
    }
    void expectBox(const char* text, const char* title = "", MessageBox::Icon icon = MessageBox::Icon::None)
    {
        ASSERT_EQ(boxes().size(), 1);
        EXPECT_EQ(boxes().first().text, QString::fromUtf8(text));
        EXPECT_EQ(boxes().first().title, QString::fromUtf8(title));
        EXPECT_EQ(boxes().first().icon, icon);
        EXPECT_EQ(boxes().first().buttons, MessageBox::Buttons::Ok);
        boxes().clear();
    }
    /// One box of the platform's own error, whose text holds this.
    void expectError(const char* part)
    {
        ASSERT_EQ(boxes().size(), 1);
        EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr(part));
        EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Critical);
        boxes().clear();
    }
    void expectClosed()
    {
        EXPECT_FALSE(ships().isVisible());
        EXPECT_FALSE(grid()->isVisibleTo(&ships()));
        EXPECT_FALSE(division()->isVisibleTo(&ships()));
        EXPECT_TRUE(dialog().isInputEnabled());
        EXPECT_FALSE(QGuiApplication::overrideCursor());
    }
};

} // namespace torvane::testing
