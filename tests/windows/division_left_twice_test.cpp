#include "windows/division_fixture.h"

#include <functional>

namespace torvane::testing {
namespace {

/// Two inputs that were both on their way before the first was looked at.
class DivisionLeftTwice : public DivisionDialogs
{
protected:
    using Input = std::function<void()>;

    void SetUp() override
    {
        openScenario();
        make(Side::Blue, {"DD Zulu"});
        make(Side::Red, {"DD Sikh"});
    }
    Input pressing(const char* name)
    {
        return [button = push(name)] { QTest::mouseClick(button, Qt::LeftButton); };
    }
    Input closing()
    {
        return [this] { dialog().close(); };
    }
    /// What a user finds afterwards.
    QStringList found()
    {
        return {QString::number(records().blueDivCount()),
                QString::number(records().redDivCount()),
                QString::number(valueOf(main().ChkPlotDiv)),
                QString::number(valueOf(dialog().chkReposition)),
                QString::number(valueOf(dialog().chkReturnFlag)),
                main().txtDivisionReturn->text(),
                QString::fromLatin1(profile())};
    }
    void expectSecondWithoutEffect(const Input& begin, const Input& first, const Input& second)
    {
        const QByteArray before = profile();
        begin();
        first();
        settle();
        const QStringList afterFirst = found();
        expectClosed();
        // The same again from the same state, with the second input behind it.
        putWorkFile(QStringLiteral("iniTemp.bmm"), before);
        QFile::remove(workFile(QStringLiteral("DivisionA2.txt")));
        records().recount();
        begin();
        first();
        second();
        settle();
        EXPECT_EQ(found(), afterFirst);
        expectClosed();
        EXPECT_TRUE(boxes().isEmpty());
    }
    void beginCreation()
    {
        create(Side::Blue);
        keepShips({"DD Cossack"});
    }
};

TEST_F(DivisionLeftTwice, ByTheCloseBoxCountsOnce)
{
    expectSecondWithoutEffect([this] { beginCreation(); }, closing(), closing());
    EXPECT_EQ(records().blueDivCount(), 1);
}

TEST_F(DivisionLeftTwice, BySaveAndTheCloseBoxIsSaved)
{
    expectSecondWithoutEffect([this] { beginCreation(); }, pressing("CmdSaveData"), closing());
    EXPECT_EQ(records().blueDivCount(), 2);
    EXPECT_EQ(key("SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("3"));
    EXPECT_EQ(key("DIVISION2SHIP0", "NAME"), QStringLiteral("Cossack"));
}

TEST_F(DivisionLeftTwice, BySaveAndSaveIsSavedOnce)
{
    expectSecondWithoutEffect([this] { beginCreation(); }, pressing("CmdSaveData"), pressing("CmdSaveData"));
    EXPECT_EQ(key("DIVISION2", "SHIPCNT"), QStringLiteral("1"));
}

TEST_F(DivisionLeftTwice, BySaveOfAnEditAndTheCloseBoxIsSaved)
{
    expectSecondWithoutEffect([this] { edit(Side::Blue, 1); }, pressing("cmdOK"), closing());
    EXPECT_EQ(main().txtDivisionReturn->text(), QStringLiteral("Division 1"));
    EXPECT_EQ(records().blueDivCount(), 1);
}

} // namespace
} // namespace torvane::testing
