#include "sections/materials.h"

#include <algorithm>
#include <array>

#include "platform/text.h"

namespace kelvor {

namespace {

struct TellingWord {
    std::string_view pattern;
    Material material;
};

/// The first that a name matches counts: an asphalt treated base is a treated base, asphalt concrete is
/// asphalt, and Portland cement concrete is concrete.
constexpr std::array kWords = {
    TellingWord{"*treated*", Material::Treated},    TellingWord{"*stabili[sz]ed*", Material::Treated},
    TellingWord{"*fly ash*", Material::Treated},    TellingWord{"*asphalt*", Material::Asphalt},
    TellingWord{"*bitum*", Material::Asphalt},      TellingWord{"*flexible*", Material::Asphalt},
    TellingWord{"AC", Material::Asphalt},           TellingWord{"AC *", Material::Asphalt},
    TellingWord{"*HMA*", Material::Asphalt},        TellingWord{"*concrete*", Material::Concrete},
    TellingWord{"*PCC*", Material::Concrete},       TellingWord{"*rigid*", Material::Concrete},
    TellingWord{"*cement*", Material::Treated},     TellingWord{"*lime *", Material::Treated},
    TellingWord{"*stone*", Material::Granular},     TellingWord{"*gravel*", Material::Granular},
    TellingWord{"*granular*", Material::Granular},  TellingWord{"*sand*", Material::Granular},
    TellingWord{"*aggregate*", Material::Granular}, TellingWord{"*base*", Material::Granular},
    TellingWord{"*subgrade*", Material::Subgrade},
};

}  // namespace

Material MaterialNamed(std::string_view name) {
    const auto told = std::find_if(kWords.begin(), kWords.end(),
                                   [&](const TellingWord& word) { return Like(name, word.pattern); });
    return told == kWords.end() ? Material::Other : told->material;
}

std::string ColourOf(Material material) {
    switch (material) {
        case Material::Asphalt:
            return "#333333";
        case Material::Concrete:
            return "#C8CCD0";
        case Material::Treated:
            return "#B5AE8E";
        case Material::Granular:
            return "#DCC48E";
        case Material::Interlayer:
            return "#8FA9BF";
        case Material::Subgrade:
            return "#B08D62";
        case Material::Other:
            break;
    }
    return "#E3E3E3";
}

}  // namespace kelvor
