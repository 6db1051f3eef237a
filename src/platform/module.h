#pragma once

#include <string>

#include "platform/file_system.h"
#include "platform/translation.h"

namespace kelvor {

/// A library of Kelvor's own that is loaded when it is first asked for, so that no start waits for it. It has
/// one function, which takes a version and gives a door, or null if it has another version.
struct Module {
    const char* file;      // without a folder
    const char* function;  // its name
    const char* work;      // what the module does, for the message: "The module that makes pages"
};

/// The function of a module. The module stays loaded: the libraries that it uses do not bear to be unloaded.
/// Throws FileError if it cannot be loaded or has no such function.
void* LoadFunction(const Module& module);

/// What is thrown when a module cannot serve.
FileError LoadFailure(const Module& module, const std::string& reason);

/// The door of a module, in the version wanted. Throws FileError if there is none.
template <typename Door>
const Door& OpenDoor(const Module& module, int version) {
    using Function = const Door* (*)(int);
    const auto function = reinterpret_cast<Function>(LoadFunction(module));
    const Door* door = function(version);
    if (door == nullptr)
        throw LoadFailure(module, Filled(Translated("%1 is of another version"), {module.file}));
    return *door;
}

}  // namespace kelvor
