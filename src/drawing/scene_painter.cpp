#include "drawing/scene_painter.h"

#include "platform/module.h"

namespace kelvor {

const ScenePainter& LoadScenePainter() {
    static const ScenePainter& painter = OpenDoor<ScenePainter>(
        {"kelvor-paint.so", kScenePainterEntryName, "what paints pictures"}, kScenePainterVersion);
    return painter;
}

}  // namespace kelvor
