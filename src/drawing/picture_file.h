#pragma once

#include "drawing/scene.h"
#include "platform/file_system.h"

namespace kelvor {

/// True for the file names that WritePicture takes: those that end in .svg or .png, in whatever case.
bool IsPictureFile(const Path& file);

/// Writes a drawing to a file, of the format that its name says; a file that is there is replaced whole.
/// Throws FileError, also for any other name.
void WritePicture(FileSystem& files, const Path& file, const Scene& scene);

}  // namespace kelvor
