#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace torvane {

/// What a message box shows. The buttons' words are the platform's, in the program's language.
struct MessageBox
{
    enum class Icon { None, Information, Question, Exclamation, Critical };
    enum class Buttons { Ok, YesNo };
    enum class Answer { Ok, Yes, No };

    QString text;
    QString title;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    Answer defaultAnswer = Answer::Ok;
};

/// Shows a box and waits for its answer. Esc and the close box answer No where there is a No.
class MessageBoxes
{
public:
    virtual ~MessageBoxes() = default;
    virtual MessageBox::Answer show(const MessageBox& box) = 0;
};

/// Asks for a line of text; nothing if the user cancels.
class InputBoxes
{
public:
    virtual ~InputBoxes() = default;
    virtual std::optional<QString> ask(const QString& title, const QString& prompt,
                                       const QString& defaultText) = 0;
};

/// What a file box starts from. The filter is one description and pattern, such as
/// "Scenario Files(*.scn)|*.scn".
struct FileRequest
{
    QString title;
    QString folder;
    QString fileName;
    QString filter;
    QString defaultSuffix;
};

/// Asks for a file to open or a name to save under; nothing if the user cancels. Full paths. Asks nothing
/// about an existing file: that is the caller's.
class FileBoxes
{
public:
    virtual ~FileBoxes() = default;
    virtual std::optional<QString> open(const FileRequest& request) = 0;
    virtual std::optional<QString> save(const FileRequest& request) = 0;
};

/// Shows a help file.
class HelpViewer
{
public:
    virtual ~HelpViewer() = default;
    /// At its contents.
    virtual void showContents(const QString& file) = 0;
    /// At the chapter of that name.
    virtual void showChapter(const QString& file, const QString& chapter) = 0;
};

/// Starts another program in a folder and doesn't wait for it. False if it could not be started.
class ProgramLauncher
{
public:
    virtual ~ProgramLauncher() = default;
    virtual bool open(const QString& file, const QString& parameters, const QString& directory) = 0;
};

/// The local date and time.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

/// Uniform random numbers in [0, 1) after a seed.
class RandomSource
{
public:
    virtual ~RandomSource() = default;
    virtual void seed(std::uint32_t value) = 0;
    virtual double next() = 0;
};

/// The world outside the program, as an Editor is handed it. Everything outlives the Editor.
struct Services
{
    MessageBoxes& messageBoxes;
    InputBoxes& inputBoxes;
    FileBoxes& fileBoxes;
    HelpViewer& helpViewer;
    ProgramLauncher& programLauncher;
    Clock& clock;
    RandomSource& randomSource;
};

} // namespace torvane
