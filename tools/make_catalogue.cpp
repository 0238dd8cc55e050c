#include "catalogue/check_ship_data.h"
#include "catalogue/read_ship_data.h"
#include "catalogue/summary.h"
#include "catalogue/write_database.h"

#include <QCoreApplication>

#include <cstdlib>
#include <exception>
#include <iostream>

namespace torvane {

namespace {

constexpr const char* usage = "usage: make_catalogue <folder of the CSV files> <path of ShipDatabase.mdb>\n"
                              "       make_catalogue --summary <folder of the CSV files>\n";

/// Names all faults on the error stream and is true if there are none.
bool isFree(const Faults& faults)
{
    for (const QString& text : faults.texts()) {
        std::cerr << qPrintable(text) << '\n';
    }
    return faults.none();
}

int run(const QString& folder, const QString& database)
{
    Faults faults;
    const CatalogueData data = parseShipData(readShipDataFiles(folder), faults);
    checkShipData(data, faults);
    if (!isFree(faults)) {
        return EXIT_FAILURE;
    }
    if (database.isEmpty()) {
        std::cout << qPrintable(catalogueSummary(data));
    } else {
        writeShipDatabase(data, database);
    }
    return EXIT_SUCCESS;
}

} // namespace

} // namespace torvane

// Makes the catalogue's database from its CSV files, or counts the ships in them.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3 || arguments.at(2).isEmpty() || arguments.at(2).startsWith(u'-')) {
        std::cerr << torvane::usage;
        return EXIT_FAILURE;
    }
    const bool summary = arguments.at(1) == QLatin1StringView("--summary");
    try {
        return torvane::run(arguments.at(summary ? 2 : 1), summary ? QString() : arguments.at(2));
    } catch (const std::exception& error) {
        std::cerr << "make_catalogue: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
