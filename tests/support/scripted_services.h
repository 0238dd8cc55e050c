#pragma once

#include "platform/services.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace torvane::testing {

/// Answers message boxes from a list, in order, and keeps what was shown. A box without an answer prepared
/// gets its default.
class ScriptedMessageBoxes : public MessageBoxes
{
public:
    MessageBox::Answer show(const MessageBox& box) override
    {
        shown.append(box);
        if (onShow) {
            onShow();
        }
        return answers.isEmpty() ? box.defaultAnswer : answers.takeFirst();
    }

    QList<MessageBox> shown;
    QList<MessageBox::Answer> answers;
    /// Runs while the box is open, as the events of a real box would.
    std::function<void()> onShow;
};

class ScriptedInputBoxes : public InputBoxes
{
public:
    std::optional<QString> ask(const QString& title, const QString& prompt,
                               const QString& defaultText) override
    {
        asked.append({title, prompt, defaultText});
        if (onAsk) {
            onAsk();
        }
        return answer;
    }

    QList<QStringList> asked;
    std::optional<QString> answer;
    /// Runs while the box is open, as the events of a real box would.
    std::function<void()> onAsk;
};

class ScriptedFileBoxes : public FileBoxes
{
public:
    std::optional<QString> open(const FileRequest& request) override { return take(request); }
    std::optional<QString> save(const FileRequest& request) override { return take(request); }

    QList<FileRequest> requests;
    QList<std::optional<QString>> answers;

private:
    std::optional<QString> take(const FileRequest& request)
    {
        requests.append(request);
        return answers.isEmpty() ? std::nullopt : answers.takeFirst();
    }
};

class ScriptedHelpViewer : public HelpViewer
{
public:
    void showContents(const QString& file) override { shown.append(file); }
    void showChapter(const QString& file, const QString& chapter) override
    {
        shown.append(file);
        chapters.append(chapter);
    }

    QStringList shown;
    QStringList chapters;
};

class ScriptedProgramLauncher : public ProgramLauncher
{
public:
    bool open(const QString& file, const QString& parameters, const QString& directory) override
    {
        opened.append({file, parameters, directory});
        if (onOpen) {
            onOpen();
        }
        return result;
    }

    QList<QStringList> opened;
    bool result = true;
    std::function<void()> onOpen;
};

class FixedClock : public Clock
{
public:
    QDateTime now() const override { return time; }

    QDateTime time{QDate(1941, 5, 24), QTime(5, 52)};
};

/// Gives numbers from a list, in order, the last one for ever.
class ScriptedRandomSource : public RandomSource
{
public:
    void seed(std::uint32_t value) override { seeds.append(value); }
    double next() override { return values.size() > 1 ? values.takeFirst() : values.constFirst(); }

    QList<std::uint32_t> seeds;
    QList<double> values{0.0};
};

struct ScriptedServices
{
    ScriptedMessageBoxes messageBoxes;
    ScriptedInputBoxes inputBoxes;
    ScriptedFileBoxes fileBoxes;
    ScriptedHelpViewer helpViewer;
    ScriptedProgramLauncher programLauncher;
    FixedClock clock;
    ScriptedRandomSource randomSource;

    Services services()
    {
        return {messageBoxes, inputBoxes, fileBoxes, helpViewer, programLauncher, clock, randomSource};
    }
};

} // namespace torvane::testing
