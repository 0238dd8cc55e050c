#include "shell/help_texts.h"
#include "windows/help_fixture.h"

#include <QDir>

namespace torvane::testing {
namespace {

using ::testing::HasSubstr;

TEST_P(Help, AMissingFileGivesABoxThatNamesIt)
{
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileMissing, GetParam()).arg(path()));
    EXPECT_THAT(boxes.shown[0].text.toStdString(), HasSubstr(path().toStdString()));
    EXPECT_EQ(boxes.shown[0].title, german() ? QStringLiteral("Hilfe") : QStringLiteral("Help"));
    EXPECT_EQ(boxes.shown[0].icon, MessageBox::Icon::Exclamation);
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST_P(Help, ADamagedFileGivesABoxThatNamesIt)
{
    const QByteArray whole = delivered();
    for (const QByteArray& bytes : {QByteArray(), whole.first(whole.size() / 3), QByteArray(100000, '\0'),
                                    QByteArray("<html>Something else</html>")}) {
        boxes.shown.clear();
        put(bytes);
        viewer.showContents(path());
        ASSERT_EQ(boxes.shown.size(), 1);
        EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileDamaged, GetParam()).arg(path()));
    }
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST_P(Help, AFolderInItsPlaceGivesABoxThatNamesIt)
{
    ASSERT_TRUE(QDir().mkpath(path()));
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileDamaged, GetParam()).arg(path()));
}

TEST_P(Help, AHugeFileIsNotRead)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64{200} * 1024 * 1024));
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileDamaged, GetParam()).arg(path()));
}

TEST_P(Help, AFileThatIsPutBackIsFoundWithoutANewStart)
{
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    open();
    EXPECT_EQ(boxes.shown.size(), 1);
    EXPECT_TRUE(window().isVisible());
}

} // namespace
} // namespace torvane::testing
