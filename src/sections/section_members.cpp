#include "sections/section_members.h"

#include <algorithm>

#include "platform/text.h"

namespace kelvor {

namespace {

constexpr double kSubgradeInches = 3.0;  // whatever lies on it, the subgrade is a band so deep
constexpr double kInterlayerInches = 1.0;

SectionPart Subgrade(const char* label) {
    return {.label = label, .material = Material::Subgrade, .fixedInches = kSubgradeInches};
}

SectionPart Asphalt(const char* label, const char* thickness) {
    return {.label = label, .thickness = thickness, .material = Material::Asphalt};
}

SectionPart Concrete(const char* label, const char* thickness) {
    return {.label = label, .thickness = thickness, .material = Material::Concrete};
}

SectionPart Granular(const char* label, const char* thickness) {
    return {.label = label, .thickness = thickness, .material = Material::Granular};
}

SectionPart Table(const char* thickness, const char* names) {
    return {.thickness = thickness, .names = names};
}

const std::vector<SectionMember>& Members() {
    static constexpr const char* kTotal = "Total Thickness ";
    static const std::vector<SectionMember> members = {
        {"DeF",
         "Flexible Design Cross Section",
         "Total Thickness is ",
         {Subgrade("Subgrade"), Table("LDLayerThick", "LDLayerMat")}},
        {"DeR",
         "Rigid Pavement Design Cross Section",
         kTotal,
         {Subgrade("Subgrade"), Granular("Base Thickness ", "SBD"), Concrete("PCC Thickness", "DEPTH")}},
        {"OvBP",
         "Bonded Overlay Design Cross Section",
         kTotal,
         {Subgrade("Existing Subbase and Subgrade"), Concrete("Existing PCC Thickness", "EXISTDEPTH"),
          Concrete("Bonded PCC Thickness ", "BOLDEPTH")}},
        {"OvUP",
         "Unbonded PCC Overlay Cross Section",
         kTotal,
         {Subgrade("Existing Subbase and Subgrade"),
          Concrete("Existing PCC Thickness", "EXISTDEPTH"),
          {.label = "Interlayer", .material = Material::Interlayer, .fixedInches = kInterlayerInches},
          Concrete("Unbonded PCC Thickness ", "UBOLDEPTH")}},
        {"OvAAP",
         "AC Overlay of AC/PCC Pavement Cross Section",
         kTotal,
         {Subgrade("Existing Subbase and Subgrade"), Concrete("Existing PCC Thickness ", "EXISTDEPTH"),
          Asphalt("Existing AC Thickness ", "ACACPCACT"), Asphalt("AC Overlay ", "ACACPCOLT")}},
        {"OvAFP",
         "AC Overlay of Fractured PCC Pavement Cross Section",
         kTotal,
         {Subgrade("Existing Subgrade"), Granular("Subbase ", "SUBLT"), Concrete("Fractured Slab ", "CSPCLT"),
          Asphalt("AC Overlay ", "ACCSTHICK")}},
        {"OvWT",
         "Whitetopping Design Cross Section",
         kTotal,
         {Subgrade("Existing Subgrade"), Table("EXISTLT", "EXISTMAT"),
          Concrete("Whitetopping Thickness ", "WTDEPTH")}},
        {"OvAA",
         "AC Overlay of AC Pavement Cross Section",
         kTotal,
         {Subgrade("Existing Subgrade"), Table("EXISTLT", "EXISTMAT"), Asphalt("AC Overlay ", "ACACTHICK")}},
        {"OvAP",
         "AC Overlay of PCC Pavement Cross Section",
         kTotal,
         {Subgrade("Existing Subgrade"), Granular("Subbase ", "SUBLT"),
          Concrete("Existing PCC Thickness ", "EXISTDEPTH"), Asphalt("AC Overlay Thickness ", "ACPCOLT")}},
    };
    return members;
}

}  // namespace

std::span<const SectionMember> SectionMembers() { return Members(); }

const SectionMember* FindSectionMember(std::string_view screen) {
    const auto found = std::find_if(Members().begin(), Members().end(), [&](const SectionMember& member) {
        return EqualNoCase(member.screen, screen);
    });
    return found == Members().end() ? nullptr : &*found;
}

}  // namespace kelvor
