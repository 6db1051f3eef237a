#include "drawing/scene_painter.h"

#include <dlfcn.h>

#include "platform/executable_folder.h"
#include "platform/file_system.h"

namespace kelvor {

namespace {

constexpr const char* kModule = "kelvor-paint.so";

FileError LoadFailure(const std::string& reason) {
    return FileError("what paints pictures could not be loaded: " + reason);
}

/// The module, which stays loaded: the libraries that it uses do not bear to be unloaded.
void* OpenModule() {
    std::string reason;
    for (const Path& place : ModulePlaces(kModule)) {
        if (void* module = ::dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL)) return module;
        reason = ::dlerror();
    }
    throw LoadFailure(reason);
}

const ScenePainter& OpenScenePainter() {
    void* module = OpenModule();
    const auto entry = reinterpret_cast<ScenePainterEntry>(::dlsym(module, kScenePainterEntryName));
    const ScenePainter* painter = entry == nullptr ? nullptr : entry(kScenePainterVersion);
    if (painter == nullptr) throw LoadFailure(std::string(kModule) + " is of another version");
    return *painter;
}

}  // namespace

const ScenePainter& LoadScenePainter() {
    static const ScenePainter& painter = OpenScenePainter();
    return painter;
}

}  // namespace kelvor
