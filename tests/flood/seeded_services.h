#pragma once

#include "flood/random.h"
#include "flood/still_clock.h"
#include "platform/window_services.h"

#include <QDir>
#include <QSet>
#include <QStringList>

#include <functional>

namespace torvane::testing {

/// The program's own boxes; what they show is told to a listener first.
class HeardMessageBoxes : public MessageBoxes
{
public:
    explicit HeardMessageBoxes(Language language) : m_boxes(language) {}

    MessageBox::Answer show(const MessageBox& box) override
    {
        if (onShow) {
            onShow(box);
        }
        return m_boxes.show(box);
    }

    std::function<void(const MessageBox&)> onShow;

private:
    WindowMessageBoxes m_boxes;
};

/// Answers as an author would who chooses without looking: one of the files in the folder of scenarios, a new
/// name there, or nothing. Never leads out of that folder.
class SeededFileBoxes : public FileBoxes
{
public:
    explicit SeededFileBoxes(Random& random) : m_random(random) {}

    std::optional<QString> open(const FileRequest& request) override
    {
        const QStringList files = QDir(request.folder).entryList(QDir::Files, QDir::Name);
        if (files.isEmpty() || m_random.chance(15)) {
            return std::nullopt;
        }
        // A file of that name need not be there.
        const bool missing = m_random.oneIn(40);
        const QString chosen = missing ? QStringLiteral("missing.scn") : m_random.oneOf(files);
        if (onOpen && !missing) {
            onOpen(chosen);
        }
        return request.folder + chosen;
    }

    std::optional<QString> save(const FileRequest& request) override
    {
        static const QStringList names{QStringLiteral("flood1.scn"), QStringLiteral("flood2.scn"),
                                       QStringLiteral("Flut ä.scn"), QStringLiteral("flood")};
        if (m_random.chance(25)) {
            return std::nullopt;
        }
        const QString chosen = m_random.oneOf(names);
        if (onSave) {
            onSave(chosen);
        }
        return request.folder + chosen;
    }

    std::function<void(const QString& name)> onOpen;
    std::function<void(const QString& name)> onSave;

private:
    Random& m_random;
};

/// Starts nothing and says that it did, or that it could not.
class SeededProgramLauncher : public ProgramLauncher
{
public:
    explicit SeededProgramLauncher(Random& random) : m_random(random) {}
    bool open(const QString&, const QString&, const QString&) override { return m_random.chance(50); }

private:
    Random& m_random;
};

/// A day of the war, and the time that the run has let pass.
class StillClock : public Clock
{
public:
    QDateTime now() const override
    {
        return QDateTime(QDate(1941, 5, 24), QTime(5, 52)).addMSecs(passedTime());
    }
};

class SeededRandomSource : public RandomSource
{
public:
    explicit SeededRandomSource(Random& random) : m_random(random) {}
    void seed(std::uint32_t) override {}
    double next() override { return m_random.fraction(); }

private:
    Random& m_random;
};

} // namespace torvane::testing
