#pragma once

#include <string>
#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The fields of a frame, with their labels.
using Items = std::vector<FieldItem>;

/// What one of the overlay screens has and the others have not: the frames of its equation's terms, of the
/// effective structural number or thickness, and of the answer.
struct OverlayScreen {
    const char* name;
    const char* caption;
    BalanceFlag flag;
    StatusLine (*governs)(const ScreenContext& context);
    LayoutElement future;
    std::vector<LayoutElement> effective = {};
    const char* answer = "AC Overlay Thickness";
    Items thickness = {};  // empty where the solved term is the answer
    const char* button = "Command1";
    std::vector<HelpRoute> helpRoutes = {};
    std::vector<TakeOver> takeOvers = {};
    std::vector<Handler> handlers = {};
};

/// The screen that a declaration describes, with what all of the family have: the sentence that says what
/// governs, the indicator with its button, and the moments at which the thickness is kept current.
FormType MakeOverlay(OverlayScreen overlay);

/// The help of a joint and crack factor, which the survey of the slab gives.
HelpRoute WorkOutJointFactor(const char* factor);

/// The terms of the flexible equation.
LayoutElement OnLayers(Items terms);

/// The terms of an asphalt overlay on a slab: reliability, deviation and serviceability are its own.
LayoutElement OnSlab(const char* future, const char* reliability, const char* deviation, FieldItem initial,
                     FieldItem terminal);

/// The terms of a concrete overlay: the concrete is that of the existing slab or of the overlay.
LayoutElement OfConcrete(const char* future, const char* label, const char* rupture, const char* elasticity,
                         const char* transfer);

/// Thickness, layer coefficient and drainage coefficient of a layer.
LayoutElement OfLayer(const char* frame, const char* title, const char* thickness, const char* coefficient,
                      const char* drainage);

/// What the existing pavement still carries.
LayoutElement Effective(std::string title, Items items);

/// The same of a slab, whose thickness comes first.
LayoutElement EffectiveSlab(Items factors);

}  // namespace kelvor
