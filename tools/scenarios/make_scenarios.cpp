// Makes the scenarios that come with the editor from their plans, with the editor's own windows, and puts
// them into a folder a language. With a fourth argument also pictures of each, loaded again.
//     make_scenarios CATALOGUE PLANS FOLDER [PICTURES]

#include "scenarios/scenario_author.h"
#include "shell/run_editor.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <set>
#include <stdexcept>

namespace torvane {

namespace {

QString makeFolder(const QString& parent, const QString& name)
{
    const QDir folder(parent);
    if (!folder.mkpath(name)) {
        throw std::runtime_error("can't make " + folder.filePath(name).toStdString());
    }
    return folder.filePath(name);
}

/// The scenario as its file has it: all of it, and as near as its divisions were placed.
void paint(ScenarioAuthor& author, const QString& file, const ScenarioPlan& plan, const QString& folder)
{
    author.load(file);
    int nearest = plan.level;
    for (const DivisionPlan& division : plan.divisions) {
        nearest = std::min(nearest, division.level);
    }
    for (const int level : std::set{plan.level, nearest}) {
        const QString picture = QStringLiteral("%1/%2_%3.png").arg(folder, plan.name).arg(level);
        if (!author.picture(level).save(picture)) {
            throw std::runtime_error("can't write " + picture.toStdString());
        }
    }
}

void makeAll(const QString& catalogue, const QString& plans, const QString& folder, const QString& pictures)
{
    for (const ScenarioPlan& plan : readScenarioPlans(plans)) {
        for (const Language language : {Language::English, Language::German}) {
            const QString code = language == Language::German ? QStringLiteral("de") : QStringLiteral("en");
            ScenarioAuthor author(catalogue, language);
            const QString made = author.make(plan);
            const QDir to(makeFolder(folder, code));
            const QString kept = to.filePath(QFileInfo(made).fileName());
            QFile::remove(kept);
            if (!QFile::copy(made, kept)) {
                throw std::runtime_error("can't write " + kept.toStdString());
            }
            std::puts(kept.toLocal8Bit().constData());
            if (!pictures.isEmpty()) {
                paint(author, made, plan, makeFolder(pictures, code));
            }
        }
    }
}

} // namespace

} // namespace torvane

int main(int argc, char** argv)
{
    // The windows want no screen.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    torvane::prepareApplication();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4 && arguments.size() != 5) {
        std::fputs("usage: make_scenarios CATALOGUE PLANS FOLDER [PICTURES]\n", stderr);
        return 2;
    }
    try {
        torvane::makeAll(arguments.at(1), arguments.at(2), arguments.at(3), arguments.value(4));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_scenarios: %s\n", error.what());
        return 1;
    }
}
