#pragma once

#include <vector>

#include "platform/clock.h"
#include "platform/component_probe.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/version.h"

namespace kelvor {

/// All that the core asks of the program it runs in. Every front end and every test brings its own.
struct Host {
    FileSystem& files;
    Clock& clock;
    Dialogs& dialogs;
    ComponentProbe& components;
    std::vector<Library> libraries = {};  // of the front end, for About
};

}  // namespace kelvor
