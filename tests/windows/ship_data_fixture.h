#pragma once

#include "platform/step_button.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "ship_state/ship_data_frm.h"
#include "support/catalogue_file.h"
#include "support/editor_fixture.h"
#include "support/lists.h"
#include "support/shown_captions.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

namespace torvane::testing {

/// Runs with a small catalogue and a scenario, in which ships are opened through the Edit Ship menu.
class OneShipDialog : public EditorFixture
{
protected:
    OneShipDialog()
    {
        CatalogueFile file(workFile(QStringLiteral("ShipDatabase.mdb")));
        file.addShip("Exeter", "Exeter", "CA", "York", "RN");
        file.addShip("Graf Spee", "G. Spee", "CA", "Deutschland", "KM");
        file.addShip("Raft", "Raft", "TR", "Nothing", "RN");
        file.addShip("Duncan RN", "Duncan", "DD", "D class leader", "RN");
        file.addShip("Duncan USN", "Duncan", "DD", "Benson", "USN");
        file.addShip("Monster", "Monster", "BB", "Too much", "RN");
        file.addShip("Wanderer of the Sea", "Wanderer", "TR", "Nowhere", "RN");
        file.addClass("York", {{"f", "2000"},
                               {"g", "75"},
                               {"h", "100"},
                               {"i", "120"},
                               {"j", "50"},
                               {"l", "400"},
                               {"m", "500"},
                               {"o", "4"},
                               {"p", "2"},
                               {"q", "6"},
                               {"r", "8"},
                               {"t", "200"},
                               {"u", "80"},
                               {"v", "40"},
                               {"TurA", "2"},
                               {"TurB", "2"},
                               {"TurC", "0.0"}});
        file.addClass("Deutschland",
                      {{"f", "3000"}, {"g", "600"}, {"h", "10"}, {"o", "1"}, {"TurA", "3"}, {"TurZ", "3"}});
        file.addClass("Nothing");
        file.addClass("D class leader", {{"f", "100"}, {"TurA", "1"}});
        file.addClass("Benson", {{"f", "120"}, {"TurA", "1"}});
        file.addClass("Too much", {{"o", "40000"}});
    }

    ShipDataFrm& dialog() { return editor().shipDataFrm(); }
    MainFrm& main() { return editor().mainFrm(); }

    QLabel* label(const char* name) { return control<QLabel>(dialog(), QLatin1StringView(name)); }
    QCheckBox* box(const char* name) { return control<QCheckBox>(dialog(), QLatin1StringView(name)); }
    QPushButton* button(const char* name) { return control<QPushButton>(dialog(), QLatin1StringView(name)); }
    ListCombo* list(const char* name) { return control<ListCombo>(dialog(), QLatin1StringView(name)); }
    QGroupBox* frame(const char* name) { return control<QGroupBox>(dialog(), QLatin1StringView(name)); }
    QTabBar* tabs() { return control<QTabBar>(dialog(), QStringLiteral("TabStrip1")); }
    QString shown(const char* name) { return label(name)->text(); }

    /// Puts the record of a ship of the catalogue into the scenario, as a division does.
    void putShip(const QString& name, const QString& section = QStringLiteral("DIVISION0SHIP0"))
    {
        editor().shipRecords().AddIndividualShip(QString(), name, section);
    }
    void store(const char* key, const char* value, const char* section = "DIVISION0SHIP0")
    {
        editor().workingProfile().write(QString::fromLatin1(section), QString::fromLatin1(key),
                                        QString::fromUtf8(value));
    }
    QString stored(const char* key, const char* section = "DIVISION0SHIP0")
    {
        return editor().workingProfile().GetIniKey(QString::fromLatin1(section), QString::fromLatin1(key));
    }
    QByteArray profile() const { return workBytes(QStringLiteral("iniTemp.bmm")); }

    /// Chooses an Edit Ship entry that the map has shown for a ship.
    void open(const QString& caption, const QString& entry = QStringLiteral("mnuDiv1Ship1"))
    {
        MainMenu& menu = main().menu();
        menu.action(entry)->setText(caption);
        menu.setVisible(entry, true);
        const bool forceB = entry.contains(QLatin1Char('B'));
        menu.setEnabled(forceB ? QStringLiteral("mnuEditShipForceB") : QStringLiteral("mnuEditShipForceA"),
                        true);
        menu.setVisible(QStringLiteral("mnuEditShip%1Div%2").arg(forceB ? 'B' : 'A').arg(entry.at(6)), true);
        ASSERT_TRUE(chooseMenu(main(), entry)) << entry.toStdString();
        ASSERT_TRUE(dialog().isVisible());
    }
    /// Starts a run with the Exeter and opens it.
    void openExeter(Language language = Language::English)
    {
        startPastSplash(language);
        putShip(QStringLiteral("Exeter"));
        open(QStringLiteral("CA Exeter"));
    }
    /// The Exeter with another value of one key.
    void openExeterWith(const char* key, const char* value)
    {
        startPastSplash(Language::English);
        putShip(QStringLiteral("Exeter"));
        store(key, value);
        open(QStringLiteral("CA Exeter"));
    }
    /// The captions of the dialog in both languages.
    void expectShown(std::span<const CaptionRow> captions)
    {
        for (const Language language : {Language::English, Language::German}) {
            openExeter(language);
            expectCaptions(dialog(), captions, language);
        }
    }
    void save() { click(button("cmdSave")); }
    void cancel() { click(button("CmdCancel")); }
    void reopen(const QString& caption = QStringLiteral("CA Exeter"))
    {
        save();
        open(caption);
    }

    /// Turns to a page by a click on its tab.
    void turnTo(int page)
    {
        QTest::mouseClick(tabs(), Qt::LeftButton, {}, tabs()->tabRect(page).center());
        settle();
        ASSERT_EQ(tabs()->currentIndex(), page);
    }
    /// Turns to the page of a control, where a user sees it.
    template <typename Control>
    Control* onItsPage(Control* control)
    {
        const auto* pages = torvane::testing::control<QStackedWidget>(dialog(), QStringLiteral("pages"));
        for (int page = 0; page < pages->count(); ++page) {
            if (pages->widget(page)->isAncestorOf(control) && page != tabs()->currentIndex()) {
                turnTo(page);
            }
        }
        EXPECT_TRUE(control->isVisible()) << control->objectName().toStdString();
        return control;
    }
    void press(const char* name) { click(onItsPage(button(name))); }
    void tick(const char* name) { click(onItsPage(box(name))); }
};

inline constexpr int generalPage = 0;
inline constexpr int systemsPage = 1;
inline constexpr int mainGunsPage = 2;
inline constexpr int secondaryPage = 3;
inline constexpr int torpedoPage = 4;

} // namespace torvane::testing
