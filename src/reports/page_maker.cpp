#include "reports/page_maker.h"

#include <dlfcn.h>

#include "platform/executable_folder.h"
#include "platform/file_system.h"

namespace kelvor {

namespace {

constexpr const char* kModule = "kelvor-pages.so";

FileError LoadFailure(const std::string& reason) {
    return FileError("What makes pages could not be loaded: " + reason);
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

const PageMaker& OpenPageMaker() {
    void* module = OpenModule();
    const auto entry = reinterpret_cast<PageMakerEntry>(::dlsym(module, kPageMakerEntryName));
    const PageMaker* maker = entry == nullptr ? nullptr : entry(kPageMakerVersion);
    if (maker == nullptr) throw LoadFailure(std::string(kModule) + " is of another version");
    return *maker;
}

}  // namespace

const PageMaker& LoadPageMaker() {
    static const PageMaker& maker = OpenPageMaker();
    return maker;
}

}  // namespace kelvor
