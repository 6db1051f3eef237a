#pragma once

#include <string>

#include "drawing/scene.h"

namespace kelvor {

/// Paints drawings as dots. It lives in a module of its own, as it needs libraries that take long to load.
class ScenePainter {
  public:
    ScenePainter() = default;
    ScenePainter(const ScenePainter&) = delete;
    ScenePainter& operator=(const ScenePainter&) = delete;
    virtual ~ScenePainter() = default;

    /// A drawing as a file in the format PNG. Throws FileError if it is larger than a picture can be.
    [[nodiscard]] virtual std::string Png(const Scene& scene, double dotsOfInch) const = 0;
};

/// What the module gives. `version` is kScenePainterVersion of the caller; null if the module has another
/// one.
using ScenePainterEntry = const ScenePainter* (*)(int version);
inline constexpr const char* kScenePainterEntryName = "KelvorScenePainter";
inline constexpr int kScenePainterVersion = 1;

/// The painter, loaded at the first call: the module kelvor-paint.so beside the executable or in the folder
/// `lib/kelvor` beside the executable's. Throws FileError with the reason if there is none.
const ScenePainter& LoadScenePainter();

}  // namespace kelvor
