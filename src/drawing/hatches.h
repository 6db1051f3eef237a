#pragma once

#include <string>

#include "drawing/scene.h"
#include "forms/chart.h"

namespace kelvor {

/// The name of a kind of layer in a legend.
std::string NameOf(Material material);

/// Draws a layer into its place as drawings of pavements have it, in a colour of its own and with the
/// customary marks: asphalt black, concrete with aggregate, a treated base ruled, an untreated one with
/// stones, an interlayer crossed, the subgrade with the strokes of earth. The marks tell the kinds apart also
/// in black and white; they become smaller in a thin layer, and none reaches out of it.
void DrawHatched(Scene& scene, const shape::Rectangle& place, Material material);

}  // namespace kelvor
