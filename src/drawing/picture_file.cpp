#include "drawing/picture_file.h"

#include "drawing/scene_painter.h"
#include "drawing/svg.h"
#include "platform/replace_file.h"
#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr double kDotsOfInch = 192.0;

bool EndsIn(const Path& file, const char* extension) {
    return EqualNoCase(file.extension().string(), extension);
}

}  // namespace

bool IsPictureFile(const Path& file) { return EndsIn(file, ".svg") || EndsIn(file, ".png"); }

void WritePicture(FileSystem& files, const Path& file, const Scene& scene) {
    if (EndsIn(file, ".svg")) return ReplaceFile(files, file, ToSvg(scene));
    if (EndsIn(file, ".png")) return ReplaceFile(files, file, LoadScenePainter().Png(scene, kDotsOfInch));
    throw FileError(Translated("a picture is a file .svg or .png"));
}

}  // namespace kelvor
