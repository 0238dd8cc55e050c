#pragma once

#include "e2e/division_dialog.h"

#include <array>

namespace torvane::testing {

/// A division of the first scenario, as the author describes it.
struct RoadDivision
{
    bool forceA;
    int number; ///< within its force, from 1
    DivisionSettings settings;
    QStringList ships; ///< their names in the catalogue
    QPoint place;      ///< pixel of the map that is clicked

    QString name() const { return (forceA ? QStringLiteral("A%1") : QStringLiteral("B%1")).arg(number); }
};
/// Two a side, all three formations and all types of ships among them.
const std::array<RoadDivision, 4>& roadDivisions();

/// The road of an author's first scenario, from New to the saved file, by keyboard and mouse: a bombardment
/// by night with its target area, two divisions a side. Each of its steps can be watched.
class FirstScenarioRoad
{
public:
    /// `step` runs whenever there is something to see, with a short name for it.
    using Watcher = std::function<void(const QString& step)>;

    explicit FirstScenarioRoad(const EditorRun& run, Watcher step = {});

    static QString title() { return QStringLiteral("Night off Narvik"); }
    QString savedFile() const { return m_run.folder().scenarioFile(title()); }

    /// The whole road. The program stands at its main window before it and after it. Throws as `EditorRun`.
    void walk() const;

private:
    void describe() const;
    void setWeather() const;
    void createDivision(const RoadDivision& division) const;
    void place(const RoadDivision& division) const;
    void placeTargetArea() const;
    void save() const;
    void show(const QString& step) const;

    const EditorRun& m_run;
    Watcher m_step;
};

} // namespace torvane::testing
