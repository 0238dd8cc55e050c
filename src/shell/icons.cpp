#include "shell/icons.h"

#include <QDir>

// Resources of a static library are taken into the program by this call; it stands outside every namespace.
static void initResource()
{
    Q_INIT_RESOURCE(icons);
}

namespace torvane {

void registerIcons()
{
    initResource();
}

} // namespace torvane
