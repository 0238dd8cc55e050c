#include "shell/run_editor.h"

#include "platform/contrast_style.h"
#include "platform/system_services.h"
#include "platform/toolkit_texts.h"
#include "platform/window_services.h"
#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/help_viewer.h"
#include "shell/icons.h"

#include <QApplication>
#include <QIcon>

namespace torvane {

void prepareApplication()
{
    registerIcons();
    QApplication::setStyle(new ContrastStyle);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/editor.svg")));
}

int runEditor(int& argc, char** argv, Language language)
{
    QApplication application(argc, argv);
    prepareApplication();

    const ToolkitTexts toolkitTexts(language);

    WindowMessageBoxes messageBoxes(language);
    WindowInputBoxes inputBoxes(language);
    WindowFileBoxes fileBoxes;
    WindowHelpViewer helpViewer(language, messageBoxes);
    SystemProgramLauncher launcher;
    SystemClock clock;
    SystemRandomSource random;

    const QString programDir = QCoreApplication::applicationDirPath();
    const FolderLock lock(pathsBelow(programDir).workDir);
    if (lock.state() == FolderLock::State::InUse) {
        messageBoxes.show({.text = mainText(MainText::FolderInUse, language).arg(programDir),
                           .title = mainText(MainText::Title, language),
                           .icon = MessageBox::Icon::Exclamation});
        return 1;
    }
    Editor editor(programDir, {.language = language},
                  {messageBoxes, inputBoxes, fileBoxes, helpViewer, launcher, clock, random});
    editor.onEnd([] { QCoreApplication::exit(0); });
    editor.start();
    return QApplication::exec();
}

} // namespace torvane
