#pragma once

#include "divisions/create_division_frm.h"
#include "overview/force_colors.h"
#include "platform/picture_box.h"
#include "platform/text_files.h"
#include "shell/main_menu.h"
#include "ship_selection/ship_dbase_frm.h"
#include "store/profile_keys.h"
#include "support/catalogue_file.h"
#include "windows/overview_fixture.h"

#include <QAction>
#include <QRadioButton>
#include <QTableView>
#include <QTableWidget>

namespace torvane::testing {

/// A run with a small catalogue and a new scenario, and the division dialog worked as a user works it.
class DivisionDialogs : public Dialogs
{
protected:
    DivisionDialogs()
    {
        CatalogueFile catalogue(workFile(QStringLiteral("ShipDatabase.mdb")));
        const struct
        {
            const char* name;
            const char* type;
            const char* speed;
        } ships[] = {
            {"Hood", "BB", "30"},    {"Repulse", "BC", "29"},
            {"Norfolk", "CA", "32"}, {"Arethusa", "CL", "32"},
            {"Cossack", "DD", "35"}, {"Maori", "DD", "36"},
            {"Sikh", "DD", "36"},    {"Zulu", "DD", "36"},
            {"Empire", "TR", "12"},  {"O'Brien, \"Red\"", "DD", "35"},
        };
        for (const auto& [name, type, speed] : ships) {
            const QString text = QString::fromLatin1(name);
            catalogue.addShip(text, text, QString::fromLatin1(type), text + QStringLiteral(" class"),
                              QStringLiteral("RN"));
            catalogue.addClass(text + QStringLiteral(" class"),
                               {{QStringLiteral("e"), QString::fromLatin1(speed)},
                                {QStringLiteral("f"), QStringLiteral("355")}});
        }
    }

    CreateDivisionFrm& dialog() { return editor().createDivisionFrm(); }
    DivisionRecords& records() { return editor().divisionRecords(); }
    QPushButton* push(const char* name) { return control<QPushButton>(dialog(), QLatin1StringView(name)); }
    QLineEdit* field(const char* name) { return control<QLineEdit>(dialog(), QLatin1StringView(name)); }
    ListCombo* choices(const char* name) { return control<ListCombo>(dialog(), QLatin1StringView(name)); }
    QRadioButton* option(const char* name)
    {
        return control<QRadioButton>(dialog(), QLatin1StringView(name));
    }
    QString caption(const char* name) { return control<QLabel>(dialog(), QLatin1StringView(name))->text(); }
    QTableWidget* grid() { return control<QTableWidget>(dialog(), QStringLiteral("GrdDivision")); }
    PictureBox* compass() { return control<PictureBox>(dialog(), QStringLiteral("PicMap")); }
    QString cell(int row, int column) { return grid()->item(row, column)->text(); }
    /// The rows marked as the flagship.
    QList<int> flagRows()
    {
        QList<int> rows;
        for (int row = 0; row < grid()->rowCount(); ++row) {
            if (cell(row, 1) == QStringLiteral("FL")) {
                rows.append(row);
            }
        }
        return rows;
    }
    void clickRow(int row)
    {
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                          grid()->visualItemRect(grid()->item(row, 0)).center());
        settle();
    }

    /// Starts a run with a new scenario; the main window is in front.
    void openScenario(Language language = Language::English)
    {
        openNew(language);
        saveOverview();
        ASSERT_TRUE(main().isInputEnabled());
    }
    void choose(const char* entry) { ASSERT_TRUE(chooseMenu(main(), QLatin1StringView(entry))) << entry; }
    bool mayChoose(const char* entry) { return chooseMenu(main(), QLatin1StringView(entry)); }
    void create(Side side)
    {
        choose(side == Side::Blue ? "mnuCreateForceA" : "mnuCreateForceB");
        ASSERT_TRUE(dialog().isVisible());
    }
    void edit(Side side, int number)
    {
        const QString entry =
            QStringLiteral("mnuForce%1%2").arg(QLatin1Char(side == Side::Blue ? 'A' : 'B')).arg(number);
        ASSERT_TRUE(chooseMenu(main(), entry)) << entry.toStdString();
        ASSERT_TRUE(dialog().isVisible());
    }
    /// What the ship dialog does when the author keeps ships in it.
    void keepShips(const QStringList& lines)
    {
        click(push("CmdAdd"));
        ASSERT_TRUE(editor().shipDBaseFrm().isVisible());
        const DivisionVars vars = readDialogFields(dialog().fields());
        const int number = vars.number.toInt();
        editor().scratchFiles().write(editor().scratchFiles().divisionFile(sideOfWord(vars.side), number),
                                      lines);
        records().writeDivData(vars);
        dialog().takeShips(lines, dialog().divisionCaption());
        closeShips();
    }
    /// A click on a ship in the ship dialog.
    void pickShip(const QString& name)
    {
        auto* ships = control<QTableView>(editor().shipDBaseFrm(), QStringLiteral("Grid1"));
        for (int row = 0; row < ships->model()->rowCount(); ++row) {
            const QModelIndex index = ships->model()->index(row, 2);
            if (index.data().toString() == name) {
                ships->scrollTo(index);
                QTest::mouseClick(ships->viewport(), Qt::LeftButton, {}, ships->visualRect(index).center());
                settle();
                return;
            }
        }
        ADD_FAILURE() << name.toStdString();
    }
    void keepPicked()
    {
        click(control<QPushButton>(editor().shipDBaseFrm(), QStringLiteral("CmdKeepShips")));
        EXPECT_EQ(editor().forms().front(), &dialog());
    }
    void closeShips()
    {
        dialog().setInputEnabled(true);
        editor().shipDBaseFrm().hideForm();
        settle();
    }
    void save() { click(push(valueOf(dialog().chkCreate) == 1 ? "CmdSaveData" : "cmdOK")); }
    /// Creates and saves a division of these ships.
    void make(Side side, const QStringList& lines)
    {
        create(side);
        keepShips(lines);
        save();
        ASSERT_FALSE(dialog().isVisible());
    }
    static QStringList destroyers(int count = 3)
    {
        return QStringList{"DD Cossack", "DD Maori", "DD Sikh", "DD Zulu"}.first(count);
    }

    QString key(const char* section, const char* name)
    {
        return editor().workingProfile().GetIniKey(QString::fromLatin1(section), QString::fromLatin1(name));
    }
    void put(const char* section, const char* name, const QString& value)
    {
        editor().workingProfile().write(QString::fromLatin1(section), QString::fromLatin1(name), value);
    }
    bool isEnabled(const char* name)
    {
        return control<QWidget>(dialog(), QLatin1StringView(name))->isEnabled();
    }
    bool isShown(const char* name)
    {
        return !control<QWidget>(dialog(), QLatin1StringView(name))->isHidden();
    }
    void expectEnabled(bool enabled, std::initializer_list<const char*> names)
    {
        for (const char* name : names) {
            EXPECT_EQ(isEnabled(name), enabled) << name;
        }
    }
    /// The opener is in front again and takes input; nothing is left half open.
    void expectClosed()
    {
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_TRUE(main().isInputEnabled());
        EXPECT_EQ(editor().forms().front(), &main());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
};

} // namespace torvane::testing
