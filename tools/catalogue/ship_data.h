#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <cstddef>
#include <vector>

namespace torvane {

/// The catalogue as its authors write it: facts about ships and classes, nothing derived.
/// Every record carries the line of its file, so that a fault can name it.

enum class Magazine {
    A, ///< forward, and the port side amidships
    B, ///< aft, and the starboard side amidships
};

struct TurretPlace
{
    char letter;
    Magazine magazine; ///< which one feeds it
};

/// The twenty places of main guns. A, B, C bear ahead and X, Y, Z astern; D, E and G, H are the forward wings
/// of the port and the starboard side, T, U and I, J the after ones; L, N, O and M, Q, R bear on the
/// broadside.
inline constexpr std::array<TurretPlace, 20> turretPlaces{
    TurretPlace{'A', Magazine::A}, TurretPlace{'B', Magazine::A}, TurretPlace{'C', Magazine::A},
    TurretPlace{'D', Magazine::A}, TurretPlace{'E', Magazine::A}, TurretPlace{'G', Magazine::A},
    TurretPlace{'H', Magazine::A}, TurretPlace{'I', Magazine::B}, TurretPlace{'J', Magazine::B},
    TurretPlace{'L', Magazine::A}, TurretPlace{'M', Magazine::B}, TurretPlace{'N', Magazine::A},
    TurretPlace{'O', Magazine::A}, TurretPlace{'Q', Magazine::B}, TurretPlace{'R', Magazine::B},
    TurretPlace{'T', Magazine::B}, TurretPlace{'U', Magazine::B}, TurretPlace{'X', Magazine::B},
    TurretPlace{'Y', Magazine::B}, TurretPlace{'Z', Magazine::B}};

enum class Hull {
    Naval,    ///< built to a navy's rules: many small compartments
    Merchant, ///< built to a merchantman's rules: few large holds; tons may be gross register tons
};

struct ShipClass
{
    int line = 0;
    QString name;
    QString navy;
    QString type;
    Hull hull = Hull::Naval;
    int year = 0; ///< in which the first ship was commissioned
    int standardTons = 0;
    double lengthFeet = 0;
    double beamFeet = 0;
    int speedKnots = 0;
    double beltInches = 0;
    double deckInches = 0;
    double mainCalibreInches = 0;
    int mainRangeYards = 0;
    int shellsPerGun = 0;
    std::array<int, turretPlaces.size()> gunsAtPlace{}; ///< in the order of turretPlaces
    double secondaryCalibreInches = 0;
    std::array<int, 4> secondaryGuns{}; ///< fore, aft, port, starboard
    double torpedoInches = 0;
    std::array<int, 4> tubesInMount{};
    int torpedoesCarried = 0; ///< in the tubes and as reloads
};

struct Ship
{
    int line = 0;
    QString name;
    QString shortName;
    QString type;
    QString className;
    QString navy;
    int commissioned = 0; ///< year
};

struct GunRange
{
    int line = 0;
    QString className;
    int yards = 0;
};

/// The rows of one file, as far as they could be read.
template <typename Record>
struct Records
{
    QString file;
    std::vector<Record> rows;
    int lastLine = 1;
    bool whole = true; ///< no row was dropped: what is missing here is missing in the file
};

struct CatalogueData
{
    Records<Ship> ships;
    Records<ShipClass> classes;
    Records<GunRange> ranges;
};

} // namespace torvane
