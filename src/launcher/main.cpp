// What a package puts into the user's menu. The editor works in its own folder, and a package's folders
// belong to the system: so each user gets a game folder of his own, among his documents.

#include "launcher/game_folder.h"
#include "platform/bilingual.h"
#include "platform/folder_lock.h"
#include "platform/runtime_error.h"
#include "shell/run_editor.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QMessageBox>
#include <QStandardPaths>

#include <unistd.h>

using namespace torvane;

namespace {

constexpr Bilingual title{"Torvane - Scenario Editor", "Torvane - Szenario-Editor"};
constexpr Bilingual made{
    "Your game folder is here:\n\n%1\n\nYour scenarios will lie in its folder Scenarios. They stay when "
    "the editor is uninstalled.",
    "Ihr Spielordner liegt hier:\n\n%1\n\nIhre Szenarien werden in seinem Ordner Scenarios liegen. Sie "
    "bleiben, wenn der Editor deinstalliert wird."};
constexpr Bilingual failed{"The game folder could not be made ready:\n\n%1",
                           "Der Spielordner konnte nicht bereitgestellt werden:\n\n%1"};

/// As asked for, otherwise as the desktop speaks.
Language chosenLanguage(const QStringList& arguments)
{
    if (arguments.contains(QStringLiteral("--german"))) {
        return Language::German;
    }
    if (arguments.contains(QStringLiteral("--english"))) {
        return Language::English;
    }
    return QLocale::system().language() == QLocale::German ? Language::German : Language::English;
}

QString gameFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
        .filePath(QStringLiteral("Torvane"));
}

/// While an editor runs there nothing is exchanged below it; the second one says so itself.
bool isInUse(const QString& folder)
{
    return FolderLock(QDir(folder).filePath(QStringLiteral("ScenarioEditor"))).state() ==
           FolderLock::State::InUse;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    prepareApplication();
    const Language language = chosenLanguage(QApplication::arguments());
    const QString package =
        QDir(QApplication::applicationDirPath()).filePath(QStringLiteral("../lib/torvane-scenario-editor"));
    const QString folder = gameFolder();
    try {
        if (!isInUse(folder) && refreshGameFolder(package, folder)) {
            QMessageBox::information(nullptr, title.in(language),
                                     made.in(language).arg(QDir::toNativeSeparators(folder)));
        }
    } catch (const RuntimeError& error) {
        QMessageBox::critical(nullptr, title.in(language), failed.in(language).arg(error.text()));
        return 1;
    }
    QByteArray program = QFile::encodeName(QDir(folder).filePath(editorProgram(language)));
    char* const arguments[] = {program.data(), nullptr};
    ::execv(program.constData(), arguments);
    QMessageBox::critical(nullptr, title.in(language),
                          failed.in(language).arg(QString::fromLocal8Bit(program)));
    return 1;
}
