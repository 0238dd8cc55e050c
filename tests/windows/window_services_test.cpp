#include "platform/window_services.h"

#include "platform/folder_lock.h"
#include "platform/system_services.h"
#include "platform/toolkit_texts.h"
#include "support/input.h"
#include "support/printers.h"
#include "support/scripted_services.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using Answer = MessageBox::Answer;

/// Runs something on the box that is about to open.
template <typename Window>
void whenOpen(std::function<void(Window&)> act)
{
    auto* timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        if (auto* window = qobject_cast<Window*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            act(*window);
        }
    });
    timer->start(5);
}

const MessageBox question{.text = QStringLiteral("Really?"),
                          .title = QStringLiteral("Title"),
                          .icon = MessageBox::Icon::Question,
                          .buttons = MessageBox::Buttons::YesNo,
                          .defaultAnswer = Answer::No};

QPushButton* buttonCalled(QMessageBox& box, const QString& text)
{
    for (QAbstractButton* button : box.buttons()) {
        if (button->text() == text) {
            return qobject_cast<QPushButton*>(button);
        }
    }
    throw std::runtime_error("no button " + text.toStdString());
}

TEST(Boxes, ShowTextTitleAndIcon)
{
    WindowMessageBoxes boxes(Language::English);
    QString text;
    QString title;
    QMessageBox::Icon icon{};
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        icon = box.icon();
        press(&box, Qt::Key_Escape);
    });
    boxes.show(question);
    EXPECT_EQ(text, QStringLiteral("Really?"));
    EXPECT_EQ(title, QStringLiteral("Title"));
    EXPECT_EQ(icon, QMessageBox::Question);
}

TEST(Boxes, ButtonsSpeakTheLanguageAndAnswer)
{
    for (const Language language : {Language::German, Language::English}) {
        const bool german = language == Language::German;
        WindowMessageBoxes boxes(language);
        whenOpen<QMessageBox>([german](QMessageBox& box) {
            click(buttonCalled(box, german ? QStringLiteral("&Ja") : QStringLiteral("&Yes")));
        });
        EXPECT_EQ(boxes.show(question), Answer::Yes);
        whenOpen<QMessageBox>([german](QMessageBox& box) {
            click(buttonCalled(box, german ? QStringLiteral("&Nein") : QStringLiteral("&No")));
        });
        EXPECT_EQ(boxes.show(question), Answer::No);
    }
}

TEST(Boxes, EnterTakesTheDefaultAndEscTheNo)
{
    WindowMessageBoxes boxes(Language::German);
    whenOpen<QMessageBox>([](QMessageBox& box) { press(&box, Qt::Key_Return); });
    EXPECT_EQ(boxes.show(question), Answer::No);
    MessageBox yes = question;
    yes.defaultAnswer = Answer::Yes;
    whenOpen<QMessageBox>([](QMessageBox& box) { press(&box, Qt::Key_Return); });
    EXPECT_EQ(boxes.show(yes), Answer::Yes);
    whenOpen<QMessageBox>([](QMessageBox& box) { press(&box, Qt::Key_Escape); });
    EXPECT_EQ(boxes.show(yes), Answer::No);
}

TEST(Boxes, MarkupInATextIsShownAsItIs)
{
    WindowMessageBoxes boxes(Language::English);
    Qt::TextFormat format{};
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        format = box.textFormat();
        press(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(boxes.show({.text = QStringLiteral("<b>x"), .title = QString()}), Answer::Ok);
    EXPECT_EQ(format, Qt::PlainText);
}

/// A folder with one scenario, and the request of the Load command for it.
class FileBox : public ::testing::Test
{
protected:
    FileBox()
    {
        QFile file(folder.filePath(QStringLiteral("Narvik.scn")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    FileRequest request() const
    {
        return {.title = QString(),
                .folder = folder.path(),
                .fileName = QString(),
                .filter = QStringLiteral("Scenario Files(*.scn)|*.scn"),
                .defaultSuffix = QString()};
    }
    static void type(QFileDialog& box, const QString& name)
    {
        auto* field = box.findChild<QLineEdit*>();
        field->setText(name);
        press(field, Qt::Key_Return);
    }

    QTemporaryDir folder;
    WindowFileBoxes boxes;
};

TEST_F(FileBox, OpensInItsFolderWithItsOneFilter)
{
    whenOpen<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.directory().path(), folder.path());
        EXPECT_EQ(box.nameFilters(), QStringList{QStringLiteral("Scenario Files(*.scn)")});
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptOpen);
        type(box, QStringLiteral("Narvik.scn"));
    });
    EXPECT_EQ(boxes.open(request()), folder.filePath(QStringLiteral("Narvik.scn")));
}

TEST_F(FileBox, LeftByEscGivesNothing)
{
    whenOpen<QFileDialog>([](QFileDialog& box) { press(&box, Qt::Key_Escape); });
    EXPECT_EQ(boxes.open(request()), std::nullopt);
    whenOpen<QFileDialog>([](QFileDialog& box) { press(&box, Qt::Key_Escape); });
    EXPECT_EQ(boxes.save(request()), std::nullopt);
}

TEST_F(FileBox, OfASaveLeavesTheTypedNameAndAsksNoQuestionOfItsOwn)
{
    for (const QString& name : {QStringLiteral("Narvik.scn"), QStringLiteral("Narvik")}) {
        whenOpen<QFileDialog>([&](QFileDialog& box) {
            EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
            type(box, name);
        });
        EXPECT_EQ(boxes.save(request()), folder.filePath(name));
    }
}

TEST_F(FileBox, SpeaksTheLanguageOfTheProgram)
{
    const auto words = [&] {
        QStringList found;
        whenOpen<QFileDialog>([&](QFileDialog& box) {
            for (const QPushButton* button : box.findChildren<QPushButton*>()) {
                found.append(button->text().remove(QLatin1Char('&')));
            }
            press(&box, Qt::Key_Escape);
        });
        boxes.open(request());
        return found;
    };
    {
        const ToolkitTexts german(Language::German);
        EXPECT_THAT(words(), ::testing::Contains(QStringLiteral("Abbrechen")));
    }
    const ToolkitTexts english(Language::English);
    EXPECT_THAT(words(), ::testing::Contains(QStringLiteral("Cancel")));
}

TEST(InputBox, GivesTheTextOrNothing)
{
    WindowInputBoxes boxes(Language::German);
    whenOpen<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.textValue(), QStringLiteral("start"));
        box.setTextValue(QStringLiteral("typed"));
        press(&box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes.ask(QStringLiteral("T"), QStringLiteral("P"), QStringLiteral("start")),
              QStringLiteral("typed"));
    whenOpen<QInputDialog>([](QInputDialog& box) { press(&box, Qt::Key_Escape); });
    EXPECT_EQ(boxes.ask(QStringLiteral("T"), QStringLiteral("P"), QStringLiteral("start")), std::nullopt);
}

class Launcher : public ::testing::Test
{
protected:
    QString put(const QString& name, const QByteArray& text, bool executable) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        if (executable) {
            file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
        }
        return file.fileName();
    }

    QTemporaryDir folder;
    SystemProgramLauncher launcher;
};

TEST_F(Launcher, StartsTheGameInItsFolder)
{
    const QString game = put(QStringLiteral("Torvane Deutsch.exe"), "#!/bin/sh\npwd > where\n", true);
    EXPECT_TRUE(launcher.open(game, QString(), folder.path()));
    QFile where(folder.filePath(QStringLiteral("where")));
    ASSERT_TRUE(waitUntil([&] { return where.exists() && where.size() > 1; }));
    ASSERT_TRUE(where.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(where.readAll()).trimmed(), QFileInfo(folder.path()).canonicalFilePath());
}

TEST_F(Launcher, HandsParametersOn)
{
    const QString game = put(QStringLiteral("game"), "#!/bin/sh\necho \"$1|$2\" > arguments\n", true);
    EXPECT_TRUE(launcher.open(game, QStringLiteral("one \"two three\""), folder.path()));
    QFile arguments(folder.filePath(QStringLiteral("arguments")));
    ASSERT_TRUE(waitUntil([&] { return arguments.exists() && arguments.size() > 1; }));
    ASSERT_TRUE(arguments.open(QIODevice::ReadOnly));
    EXPECT_EQ(arguments.readAll(), "one|two three\n");
}

TEST_F(Launcher, AMissingOrPlainFileIsNotStarted)
{
    EXPECT_FALSE(launcher.open(folder.filePath(QStringLiteral("Torvane.exe")), QString(), folder.path()));
    EXPECT_FALSE(launcher.open(put(QStringLiteral("plain"), "text", false), QString(), folder.path()));
    EXPECT_FALSE(launcher.open(folder.path(), QString(), folder.path()));
}

TEST(FolderLocks, ASecondHolderIsToldAndTheEndOfTheFirstFreesIt)
{
    const QTemporaryDir folder;
    {
        const FolderLock first(folder.path());
        EXPECT_EQ(first.state(), FolderLock::State::Held);
        const FolderLock second(folder.path());
        EXPECT_EQ(second.state(), FolderLock::State::InUse);
    }
    EXPECT_EQ(FolderLock(folder.path()).state(), FolderLock::State::Held);
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(FolderLocks, AMissingFolderIsNoHindrance)
{
    EXPECT_EQ(FolderLock(QStringLiteral("/nowhere/at/all")).state(), FolderLock::State::Unavailable);
}

TEST(RandomSources, GiveTheSameNumbersForTheSameSeedWithinTheRange)
{
    SystemRandomSource random;
    random.seed(7);
    const double first = random.next();
    for (int i = 0; i < 1000; ++i) {
        const double value = random.next();
        EXPECT_GE(value, 0.0);
        EXPECT_LT(value, 1.0);
    }
    random.seed(7);
    EXPECT_EQ(random.next(), first);
    random.seed(8);
    EXPECT_NE(random.next(), first);
}

} // namespace
} // namespace torvane::testing
