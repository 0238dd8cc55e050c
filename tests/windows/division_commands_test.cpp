#include "windows/division_fixture.h"

namespace torvane::testing {
namespace {

class DivisionMenu : public DivisionDialogs
{
protected:
    /// All Edit entries in sight, as with six divisions a side.
    void showEntries()
    {
        for (int division = 1; division <= 6; ++division) {
            main().menu().enableForceMenus(division, division);
        }
        main().menu().setEnabled(QStringLiteral("editForceA"), true);
        main().menu().setEnabled(QStringLiteral("editForceB"), true);
    }
    /// What an entry has told the dialog by the time that it shows.
    void expectOpened(const char* entry, const char* title, const char* side, int create)
    {
        choose(entry);
        EXPECT_TRUE(dialog().isVisible()) << entry;
        EXPECT_EQ(dialog().windowTitle(), QString::fromLatin1(title));
        EXPECT_EQ(dialog().lblside->text(), QString::fromLatin1(side)) << entry;
        EXPECT_EQ(valueOf(dialog().chkCreate), create) << entry;
        EXPECT_FALSE(main().isInputEnabled()) << entry;
        EXPECT_EQ(editor().forms().front(), &dialog()) << entry;
        EXPECT_FALSE(overview().isVisible()) << entry;
        closeBox(&dialog());
        EXPECT_TRUE(main().isInputEnabled()) << entry;
    }
};

TEST_F(DivisionMenu, OpensTheDialogForANewDivisionOfEachForce)
{
    for (const Language language : {Language::English, Language::German}) {
        openScenario(language);
        expectOpened("mnuCreateForceA", "Torvane - Create Division for Force A", "Force A (Blue)", 1);
        expectOpened("mnuCreateForceB", "Torvane - Create Division for Force B", "Force B (Red)", 1);
    }
}

TEST_F(DivisionMenu, OpensTheDialogForEachDivisionThatIsEdited)
{
    for (const Language language : {Language::English, Language::German}) {
        openScenario(language);
        showEntries();
        for (int number = 1; number <= 6; ++number) {
            const QByteArray n = QByteArray::number(number);
            expectOpened("mnuForceA" + n, "Torvane - Edit Force A Division " + n, "Force A (Blue)", 0);
            expectOpened("mnuForceB" + n, "Torvane - Edit Force B Division " + n, "Force B (Red)", 0);
        }
    }
}

TEST_F(DivisionMenu, MarksTheDivisionThatIsEdited)
{
    const char* const rows[][2] = {
        {"mnuForceA1", "chkDiv1"}, {"mnuForceA2", "chkDiv2"},  {"mnuForceA3", "chkDiv3"},
        {"mnuForceA4", "chkDiv4"}, {"mnuForceA5", "chkDiv9"},  {"mnuForceA6", "chkDiv10"},
        {"mnuForceB1", "chkDiv5"}, {"mnuForceB2", "chkDiv6"},  {"mnuForceB3", "chkDiv7"},
        {"mnuForceB4", "chkDiv8"}, {"mnuForceB5", "chkDiv11"}, {"mnuForceB6", "chkDiv12"}};
    openScenario();
    showEntries();
    for (const auto& [entry, marker] : rows) {
        QStringList changed;
        QList<QMetaObject::Connection> connections;
        for (QCheckBox* box : dialog().chkDiv) {
            connections.append(QObject::connect(box, &QCheckBox::toggled, box, [&changed, box](bool on) {
                changed.append(box->objectName() + (on ? QStringLiteral(" 1") : QStringLiteral(" 0")));
            }));
        }
        choose(entry);
        const QString name = QString::fromLatin1(marker);
        EXPECT_EQ(changed, (QStringList{name + " 1", name + " 0"})) << entry;
        click(push("CmdEditCancel"));
        for (const QMetaObject::Connection& connection : connections) {
            QObject::disconnect(connection);
        }
    }
}

TEST_F(DivisionMenu, OffersNothingToEditBeforeADivisionIsSaved)
{
    openScenario();
    EXPECT_FALSE(mayChoose("mnuForceA1"));
    EXPECT_FALSE(mayChoose("mnuForceB1"));
}

} // namespace
} // namespace torvane::testing
