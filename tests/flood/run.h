#pragma once

#include "flood/seeded_services.h"
#include "platform/toolkit_texts.h"
#include "shell/editor.h"
#include "shell/help_viewer.h"

#include <QSet>

#include <memory>

namespace torvane::testing {

/// One run of the real editor in a game folder, composed as its programs compose it, but for the file boxes,
/// the launcher, the clock and the random source, which go by the seed.
class Run
{
public:
    Run(const QString& gameFolder, Language language, Random& random)
        : m_toolkitTexts(language),
          m_messageBoxes(language),
          m_inputBoxes(language),
          m_fileBoxes(random),
          m_helpViewer(language, m_messageBoxes),
          m_launcher(random),
          m_randomSource(random),
          m_editor(
              gameFolder, {.language = language},
              {m_messageBoxes, m_inputBoxes, m_fileBoxes, m_helpViewer, m_launcher, m_clock, m_randomSource})
    {
    }

    Editor& editor() { return m_editor; }
    HeardMessageBoxes& messageBoxes() { return m_messageBoxes; }
    SeededFileBoxes& fileBoxes() { return m_fileBoxes; }

private:
    ToolkitTexts m_toolkitTexts;
    HeardMessageBoxes m_messageBoxes;
    WindowInputBoxes m_inputBoxes;
    SeededFileBoxes m_fileBoxes;
    WindowHelpViewer m_helpViewer;
    SeededProgramLauncher m_launcher;
    StillClock m_clock;
    SeededRandomSource m_randomSource;
    Editor m_editor;
};

} // namespace torvane::testing
