#pragma once

#include "flood/census.h"
#include "flood/habits.h"
#include "flood/invariants.h"
#include "flood/run.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>

namespace torvane::testing {

/// What a flood is made from.
struct FloodOptions
{
    std::uint64_t seed = 1;
    std::int64_t events = 10000;
    int paintEvery =
        1; ///< the windows are painted at each so-manieth event: most of a flood's time goes there
    QString gameFiles;    ///< the staged ScenarioEditor folder, which is copied
    QString damagedFiles; ///< a folder of files that the load box offers beside the saved ones
};

/// What came of a flood.
struct FloodOutcome
{
    QString fault;           ///< the invariant that failed; empty if none did
    QByteArray profile;      ///< the working profile at the fault
    std::int64_t events = 0; ///< carried out
    QStringList lastInputs;
    std::uint64_t digest = 0; ///< of all inputs: the same for the same seed
    std::int64_t residentGrowth = 0;
    std::int64_t allocatedGrowth = 0;
};

/// Sends the real editor events from outside, as a seed has it, and looks after each whether what holds of
/// the editor still holds. When the author leaves the editor, another run of it begins. Works in a temporary
/// folder of its own, which is the current folder meanwhile. Needs a QApplication that has not been run, with
/// a stopped clock.
class Monkey : public QObject
{
public:
    explicit Monkey(const FloodOptions& options);
    ~Monkey() override;

    FloodOutcome run();
    const Census& census() const { return m_census; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void fillGameFolder();
    void startRun();
    void endRun();
    void tidyScenarios() const;
    void countCommands();
    void hearBox(const MessageBox& box);
    void rememberSave(bool saved);

    void postTurn();
    void turn();
    void chooseInputs();
    void walkOut();
    void deliver();
    bool paints() const;
    void paintWindows();
    void log(const QString& line);
    void fail(const QString& fault);
    void finish();

    QString brokenInvariant();
    QString brokenInProfile();
    QString brokenInFront(bool profileChanged);
    QString memoryFault();
    void sampleMemory();
    bool takeProfileChange();
    QByteArray profileBytes() const;

    const FloodOptions m_options;
    QTemporaryDir m_folder;
    QString m_formerFolder;
    Random m_random;
    Habits m_habits{m_random};
    InputDevices m_devices;
    Census m_census;
    FloodOutcome m_outcome;
    std::unique_ptr<Run> m_run;
    std::deque<Input> m_inputs;

    int m_rounds = 0; ///< of the event loop since the last input
    int m_depth = 0;  ///< inputs whose delivery has not returned: boxes are open in them
    int m_stepsOut = 0;
    bool m_walkingOut = false;
    QString m_heardFault;

    Origin m_origin = Origin::None;
    bool m_allDrawn = true; ///< no number of the scenario has been too large so far
    QString m_savedName;
    QSet<QString> m_soundFiles{}; ///< saved by the editor from a scenario that it made
    Form* m_front = nullptr;
    QString m_frontName;
    std::uint64_t m_profileMark = 0;
    std::optional<std::int64_t> m_firstResident;
    std::optional<std::int64_t> m_firstAllocated;
    int m_runs = 0;
};

} // namespace torvane::testing
