#pragma once

#include "platform/profile.h"
#include "store/scratch_files.h"
#include "store/side.h"
#include "store/target_area.h"

#include <QString>

#include <functional>

namespace torvane {

class WorkingProfile;

/// Called at each step of a load.
using LoadProgress = std::function<void()>;

/// What a load does to the menus of the two forces, as it comes to each division.
class ForceMenus
{
public:
    virtual ~ForceMenus() = default;
    /// Shows the Edit and Reposition entries of a division; `number` counts from 1 within its side. There are
    /// none beyond 6.
    virtual void showDivision(Side side, int number) = 0;
    /// Makes what is there to create, edit and reposition divisions of both sides usable.
    virtual void enableForces() = 0;
    /// Counts a division in and captions its Reposition entry.
    virtual void addRepositionMenuEntry(const QString& name, const QString& side) = 0;
};

/// A scenario file, read and parsed. Any content will do. Throws RuntimeError, naming the file, where it
/// can't be read or is the working profile itself, which a load deletes.
Profile readScenario(const QString& path, const WorkingProfile& profile);

/// The store as a load leaves it, from its four steps below in their order. Writes key by key: the caller
/// holds a batch. Throws RuntimeError as they do, and then leaves store, target and menus as far as it got.
void rebuildStore(const Profile& file, WorkingProfile& profile, const ScratchFiles& files, TargetArea& target,
                  ForceMenus& menus, const LoadProgress& advance = {});

/// Replaces the working profile by the scenario of a file. Throws as `copyScenarioToProfile` does, and if the
/// old profile can't be deleted.
void loadProfileFromScenario(const Profile& file, WorkingProfile& profile, const LoadProgress& advance = {});

/// Writes the keys of a scenario file into the profile, spacing in yards and positions as the file kept them
/// in yards, z still turned. Missing keys arrive as "INVALID". Throws Overflow for a target area's z beyond
/// the range of a double.
void copyScenarioToProfile(const Profile& file, WorkingProfile& profile, const LoadProgress& advance = {});

/// Takes the centre of the target area from the keys of a profile, as a load does. Throws Overflow beyond 32
/// bits.
void readTargetArea(const Profile& profile, TargetArea& target);

/// Takes the centre of the target area from the profile and turns the z of all ships back to the map's sign.
/// An area of Force B has its x alone: its z stays 0. Throws Overflow for a target beyond 32 bits and a z
/// beyond the range of a double.
void restoreTargetArea(WorkingProfile& profile, TargetArea& target, const LoadProgress& advance = {});

/// Writes settings and ship list of each division to its scratch files, up to the first section without a
/// side. Numbers count from 1 within a side; beyond 6 a division has files but no menu entry. Throws
/// RuntimeError where a file can't be written.
void rebuildDivisionFiles(const WorkingProfile& profile, const ScratchFiles& files, ForceMenus& menus,
                          const LoadProgress& advance = {});

/// Writes the names of all ships to their scratch file. Throws RuntimeError where it can't be written.
void rebuildShipTrack(const WorkingProfile& profile, const ScratchFiles& files,
                      const LoadProgress& advance = {});

} // namespace torvane
