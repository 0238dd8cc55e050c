#include "store/working_tables.h"

#include <QCoreApplication>

#include <cstdlib>
#include <exception>
#include <iostream>

// Makes the database file of the working tables, over a file of that name.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::cerr << "usage: make_working_tables <path of ScenarioData.mdb>\n";
        return EXIT_FAILURE;
    }
    try {
        torvane::createWorkingTables(arguments.at(1));
    } catch (const std::exception& error) {
        std::cerr << "make_working_tables: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
