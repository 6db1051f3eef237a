#include "drawing/scene_painter.h"

#include "platform/module.h"
#include "platform/translation.h"

namespace kelvor {

const ScenePainter& LoadScenePainter() {
    static const auto& painter = OpenDoor<ScenePainter>(
        {"kelvor-paint.so", kScenePainterEntryName, ToTranslate("The module that paints pictures")},
        kScenePainterVersion);
    return painter;
}

}  // namespace kelvor
