// Shows the editor on a machine without a display: walks the road of a first scenario on a virtual screen,
// and puts a picture of every step and the saved scenario into a folder.
//     guided_tour FOLDER PROGRAM

#include "e2e/first_scenario_road.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

using namespace torvane;
using namespace torvane::testing;

void tell(const QString& path)
{
    std::puts(QDir::toNativeSeparators(path).toLocal8Bit().constData());
}

void makeEmpty(const QDir& folder)
{
    if (!QDir().mkpath(folder.path())) {
        throw std::runtime_error("can't make " + folder.path().toStdString());
    }
    const QStringList ours{QStringLiteral("*.png"), QStringLiteral("*.scn")};
    for (const QString& name : folder.entryList(ours, QDir::Files)) {
        QFile::remove(folder.filePath(name));
    }
}

void walk(const QDir& folder, Language language)
{
    makeEmpty(folder);
    const Desktop desktop;
    const GameFolder game;
    EditorRun run(desktop, game, language);
    int pictures = 0;
    const auto picture = [&](const QString& step) {
        const QString file =
            folder.filePath(QStringLiteral("%1_%2.png").arg(++pictures, 2, 10, QLatin1Char('0')).arg(step));
        if (!desktop.activePicture().save(file)) {
            throw std::runtime_error("can't write " + file.toStdString());
        }
        tell(file);
    };
    run.start([&] { picture(QStringLiteral("splash")); });
    picture(QStringLiteral("main_window"));
    const FirstScenarioRoad road(run, picture);
    road.walk();
    picture(QStringLiteral("saved"));
    const QString saved = folder.filePath(road.title() + QStringLiteral(".scn"));
    if (!QFile::copy(road.savedFile(), saved)) {
        throw std::runtime_error("can't write " + saved.toStdString());
    }
    tell(saved);
    run.leave();
}

int tour(const QString& folder, Language language)
{
    try {
        walk(QDir(folder), language);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The tour ends here: %s\n", error.what());
        return 1;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    for (const Language language : {Language::German, Language::English}) {
        if (arguments.size() == 3 && arguments.at(2) == programNames(language).program) {
            return tour(arguments.at(1), language);
        }
    }
    std::fputs("usage: guided_tour FOLDER PROGRAM\n", stderr);
    return 2;
}
