// Saves the scenario of a working profile over and over into one file, with the target area now here, now
// there, until it is killed. Arguments: the work folder and the file. Writes "(" before each save and ")"
// behind it.

#include "platform/profile_store.h"
#include "scenario_file/save_scenario.h"
#include "store/working_profile.h"

#include <cstdio>

using namespace torvane;

static void say(char mark)
{
    std::putchar(mark);
    std::fflush(stdout);
}

int main(int argc, char* argv[])
{
    if (argc != 3) {
        return 2;
    }
    ProfileStore store;
    const WorkingProfile profile(store, QString::fromLocal8Bit(argv[1]));
    const QString file = QString::fromLocal8Bit(argv[2]);
    for (int x = 1;; x = x == 1 ? -1000000 : 1) {
        const ProfileStore::Batch batch(store);
        say('(');
        saveINIfile(file, profile, {.x = x}, u"Force A");
        say(')');
    }
}
