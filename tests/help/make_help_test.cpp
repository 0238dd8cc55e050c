#include "guide/write_guide.h"
#include "small_guide.h"
#include "support/printers.h"

#include <QProcess>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class MakeHelp : public SmallGuide
{
protected:
    QString target() const { return folder() + QStringLiteral("/SE_README.HLP"); }

    /// Runs the program and gives its exit code; what it says is in `errors` then.
    int run(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral(MAKE_HELP), arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        errors = process.readAllStandardError().toStdString();
        return process.exitCode();
    }

    std::string errors;
};

TEST_F(MakeHelp, MakesTheOneFile)
{
    EXPECT_EQ(run({folder(), target()}), 0);
    EXPECT_EQ(errors, "");
    QFile file(target());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), guideFile(readGuide(folder())));
}

TEST_F(MakeHelp, NamesWhatIsWrongAndMakesNothing)
{
    spoil(QStringLiteral("en/one.html"), "two.html#sea", "two.html#land");
    EXPECT_NE(run({folder(), target()}), 0);
    EXPECT_THAT(errors, HasSubstr("en/one.html: the link \"two.html#land\" leads nowhere\n"));
    EXPECT_FALSE(QFile::exists(target()));
}

TEST_F(MakeHelp, NamesAChapterThatIsMissing)
{
    ASSERT_TRUE(QFile::remove(folder() + QStringLiteral("/de/one.html")));
    EXPECT_NE(run({folder(), target()}), 0);
    EXPECT_THAT(errors, HasSubstr("de/one.html"));
}

TEST_F(MakeHelp, TellsHowItIsUsed)
{
    EXPECT_NE(run({}), 0);
    EXPECT_THAT(errors, StartsWith("usage: make_help"));
}

} // namespace
} // namespace torvane::testing
