#include "reports/drawing_pictures.h"

#include <utility>

#include "drawing/scene_painter.h"
#include "platform/file_system.h"

namespace kelvor {

namespace {

constexpr double kDotsOfInch = 150.0;  // enough for paper, and small enough to be sent by mail

Block PictureOf(const blocks::Drawing& drawing) {
    try {
        return blocks::Picture{LoadScenePainter().Png(drawing.scene, kDotsOfInch), drawing.words,
                               drawing.scene.width, drawing.scene.height};
    } catch (const FileError&) {
        return blocks::Paragraph{drawing.words};
    }
}

}  // namespace

Document WithPictures(Document document) {
    for (Block& block : document.blocks) {
        if (const auto* drawing = std::get_if<blocks::Drawing>(&block)) block = PictureOf(*drawing);
    }
    return document;
}

}  // namespace kelvor
