#pragma once

#include "scenarios/scenario_plan.h"
#include "shell/editor.h"
#include "support/scripted_services.h"

#include <QImage>
#include <QTemporaryDir>

#include <memory>

namespace torvane {

class DialogHand;

/// An author at work: a game folder of its own, an editor in it, and hands that use its windows. Needs a
/// QApplication. Every operation throws std::runtime_error, and says what it wanted, where the editor
/// doesn't follow or shows a message.
class ScenarioAuthor
{
public:
    /// `catalogue` is the path of the ship catalogue's database.
    ScenarioAuthor(const QString& catalogue, Language language);

    /// The whole road from New to Save. The path of the scenario file, in the author's game folder.
    QString make(const ScenarioPlan& plan);
    /// Loads a file and leaves the overview that shows it.
    void load(const QString& path);
    /// Saves the scenario under edit, over its file if there is one; the path of the file.
    QString save();
    /// The main window with the scenario under edit at a level of zoom, 0 to 10.
    QImage picture(int level);

    Editor& editor() { return *m_editor; }

private:
    void describe(const ScenarioPlan& plan);
    void setEnvironment(const EnvironmentPlan& plan);
    void setClock(const DialogHand& hand, const char* label, ClockTime time, const char* hours,
                  const char* minutes);
    void create(const DivisionPlan& plan);
    void pickShips(const QStringList& ships);
    void pickShip(const QString& ship);
    bool pickFromList(const QString& ship);
    void setDivision(const DivisionPlan& plan);
    void placeTarget(Yards place, int level);
    void zoomTo(int level);
    void clickMap(Yards place);
    void chooseEntry(const char* entry);
    void expectNoMessage();

    testing::ScriptedServices m_script;
    QTemporaryDir m_folder;
    Language m_language;
    std::unique_ptr<Editor> m_editor;
};

} // namespace torvane
