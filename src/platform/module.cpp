#include "platform/module.h"

#include <dlfcn.h>

#include "platform/executable_folder.h"

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
    return FileError(std::string(module.work) + " could not be loaded: " + reason);
}

void* LoadFunction(const Module& module) {
    void* function = ::dlsym(OpenFile(module), module.function);
    if (function == nullptr) throw LoadFailure(module, std::string("it has no ") + module.function);
    return function;
}

}  // namespace kelvor
