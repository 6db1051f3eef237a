#include "platform/module.h"

#include <dlfcn.h>

#include "platform/executable_folder.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

void* OpenFile(const Module& module) {
    std::string reason;
    for (const Path& place : ModulePlaces(module.file)) {
        if (void* file = ::dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL)) return file;
        reason = ::dlerror();
    }
    throw LoadFailure(module, reason);
}

}  // namespace

FileError LoadFailure(const Module& module, const std::string& reason) {
    return FileError(Filled(Translated("%1 could not be loaded: %2"), {Translated(module.work), reason}));
}

void* LoadFunction(const Module& module) {
    void* function = ::dlsym(OpenFile(module), module.function);
    if (function == nullptr) throw LoadFailure(module, Filled(Translated("it has no %1"), {module.function}));
    return function;
}

}  // namespace kelvor
