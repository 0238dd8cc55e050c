#include "guide/check_guide.h"
#include "guide/write_guide.h"
#include "platform/text_files.h"

#include <QCoreApplication>

#include <cstdlib>
#include <exception>
#include <iostream>

// Makes the help file of both programs from the guide's sources, or says what is wrong with them.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "usage: make_help <folder of the guide> <path of SE_README.HLP>\n";
        return EXIT_FAILURE;
    }
    try {
        const torvane::Guide guide = torvane::readGuide(arguments.at(1));
        const QStringList problems = torvane::guideProblems(guide);
        for (const QString& problem : problems) {
            std::cerr << qPrintable(problem) << '\n';
        }
        if (!problems.isEmpty()) {
            return EXIT_FAILURE;
        }
        torvane::writeWholeFile(arguments.at(2), torvane::guideFile(guide));
    } catch (const std::exception& error) {
        std::cerr << "make_help: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
