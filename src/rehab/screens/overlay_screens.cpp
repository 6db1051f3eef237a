#include "rehab/screens/overlay_screens.h"

#include "forms/work_out_help.h"
#include "platform/translation.h"
#include "rehab/screens/deflection_averages.h"
#include "rehab/screens/overlay_family.h"
#include "rehab/screens/overlay_governs.h"
#include "rehab/screens/overlay_routines.h"

namespace kelvor {

namespace {

FormType AsphaltOnAsphaltForm() {
    return MakeOverlay(
        {.name = "OvAA",
         .caption = "AC Overlay of AC Pavement",
         .flag = BalanceFlag::OvAA,
         .governs = AsphaltOverlayGoverns,
         .future = OnLayers({{"ACACFUTSN", "Future Structural Number"},
                             {"FLEXE18", "Future ESALs"},
                             {"ACACREL", "Reliability"},
                             {"ACACDEV", "Overall Deviation"},
                             {"EXISTRM", "Soil Resilient Modulus"},
                             {"ACACPO", "Initial Serviceability, Po"},
                             {"ACACPT", "Terminal Serviceability, Pt"}}),
         .effective = {Effective("Effective Structural Number", {{"NDTEFFSN", "Effective SN (NDT)"},
                                                                 {"CONDEFFSN", "Effective SN (Cond. Survey)"},
                                                                 {"ACACEFFSN", "Effective SN for Analysis"}}),
                       Hidden({"SolveForFiled"})},
         .thickness = {{"ACACOLLC", "AC Overlay Layer Coefficient"}, {"ACACTHICK", "AC Overlay Thickness"}},
         .helpRoutes = {{"NDTEFFSN", "SNHelp", Translated("Work out the effective SN from deflections")},
                        {"CONDEFFSN", "SNCHELP", Translated("Work out the effective SN from the survey")},
                        {"ACACOLLC", "H_ACACOLLC"}},
         .takeOvers = {SoilModulusFromDeflections("EXISTRM"), StructuralNumberFromDeflections("NDTEFFSN")},
         .handlers = {NotingOfField()}});
}

FormType AsphaltOnFracturedForm() {
    return MakeOverlay(
        {.name = "OvAFP",
         .caption = "AC Overlay of Fractured PCC Pavement",
         .flag = BalanceFlag::OvAFP,
         .governs = FracturedSlabGoverns,
         .future = Rows({OnLayers({{"ACCSFUTSN", "Future Structural Number"},
                                   {"FLEXE18", "Future ESAL"},
                                   {"ACCSREL", "Overlay Reliability"},
                                   {"ACCSDEV", "Overall Deviation"},
                                   {"EXISTRM2", "Soil Resilient Modulus"},
                                   {"ACCSPO", "Initial Serviceability, Po"},
                                   {"ACCSPT", "Terminal Serviceability, Pt"}}),
                         OfLayer("Frame5", "Fractured Slab", "CSPCLT", "CSPCLC", "CSPCDC"),
                         OfLayer("Frame6", "Subbase", "SUBLT", "SUBLC", "SUBDC")}),
         .effective = {Effective("Effective Structural Number",
                                 {{"ACCSEFFSN", "Effective Structural Number"}})},
         .thickness = {{"ACCSOLLC", "AC Overlay Coefficient"}, {"ACCSTHICK", "AC Overlay Thickness"}}});
}

FormType AsphaltOnConcreteForm() {
    return MakeOverlay(
        {.name = "OvAP",
         .caption = "AC Overlay of PCC Pavement",
         .flag = BalanceFlag::OvAP,
         .governs = SlabGoverns,
         .future = OnSlab("ACPCFUTD", "ACPCREL", "ACPCDEV", {"ACPCPO", "Initial Serviceability, Po"},
                          {"ACPCPT", "Terminal Serviceability, Pt"}),
         .effective = {EffectiveSlab({{"ACPCFJC", "Joint/Cracks Adj. Factor"},
                                      {"ACPCFDUR", "Durability Adj. Factor"},
                                      {"ACPCFFAT", "Fatigue Adj. Factor"},
                                      {"ACPCEFFD", "Effective PCC Thickness"}})},
         .thickness = {{"ACPCOLT", "AC Overlay Thickness"}},
         .helpRoutes = {WorkOutJointFactor("ACPCFJC")},
         .takeOvers = SlabFromDeflections()});
}

FormType AsphaltOnCompositeForm() {
    return MakeOverlay(
        {.name = "OvAAP",
         .caption = "AC Overlay of AC/PCC Pavement",
         .flag = BalanceFlag::OvAAP,
         .governs = CompositeGoverns,
         .future = OnSlab("ACACPCFUTD", "ACACPCREL", "ACACPCDEV", {"ACACPCPO", "Initial Serviceability"},
                          {"ACACPCPT", "Terminal Serviceability"}),
         .effective = {EffectiveSlab({{"ACACPCFJC", "Joint/Crack Adj. Factor"},
                                      {"ACACPCFDUR", "Durability Adj. Factor"},
                                      {"ACACPCACT", "Existing AC Thickness"},
                                      {"ACACPCFAC", "AC Quality Adj. Factor"},
                                      {"ACACPCEFFD", "Effective AC/PCC Thickness"}})},
         .thickness = {{"ACACPCOLT", "AC Overlay Thickness"}},
         .helpRoutes = {WorkOutK("EXISTK"), WorkOutJointFactor("ACACPCFJC")},
         .takeOvers = CompositeSlabFromDeflections()});
}

FormType BondedForm() {
    return MakeOverlay(
        {.name = "OvBP",
         .caption = "Bonded Overlay Design",
         .flag = BalanceFlag::OvBP,
         .governs = BondedGoverns,
         .future = OfConcrete("BOLFUTDEPTH", "Future Thickness", "EXISTMR", "EXISTEC", "EXISTJ"),
         .effective = {EffectiveSlab({{"BOLFJC", "Joints/Cracks Adj. Factor"},
                                      {"BOLFDUR", "Durabilty Adj. Factor"},
                                      {"BOLFFAT", "Fatigue Adj. Factor"},
                                      {"BOLEFFDEPTH", "Effective PCC Thickness"}})},
         .answer = "Bonded Overlay Thickness",
         .thickness = {{"BOLDEPTH", "Bonded Overlay Thickness"}},
         .helpRoutes = {WorkOutK("EXISTK"), WorkOutJointFactor("BOLFJC")},
         .takeOvers = SlabFromDeflections()});
}

FormType UnbondedForm() {
    return MakeOverlay({.name = "OvUP",
                        .caption = "Unbonded PCC Overlay",
                        .flag = BalanceFlag::OvUP,
                        .governs = UnbondedGoverns,
                        .future = OfConcrete("UBOLFUTDEPTH", "Future Thickness", "OLMR", "OLEC", "OLJ"),
                        .effective = {EffectiveSlab({{"UBOLFJCU", "Joint/Cracks Adj. Factor"},
                                                     {"UBOLEFFDEPTH", "Effective PCC Thickness"}})},
                        .answer = "Unbonded Overlay Thickness",
                        .thickness = {{"UBOLDEPTH", "Unbonded Overlay Thickness"}},
                        .button = "CmdSolveFor",
                        .helpRoutes = {WorkOutK("EXISTK"), WorkOutJointFactor("UBOLFJCU")},
                        .takeOvers = {SubgradeReactionFromDeflections()}});
}

FormType WhitetoppingForm() {
    return MakeOverlay({.name = "OvWT",
                        .caption = "Whitetopping Design",
                        .flag = BalanceFlag::OvWT,
                        .governs = WhitetoppingGoverns,
                        .future = OfConcrete("WTDEPTH", "Whitetopping Thickness", "OLMR", "OLEC", "OLJ"),
                        .answer = "Whitetopping Thickness",
                        .helpRoutes = {WorkOutK("EXISTK")},
                        .takeOvers = {SubgradeReactionFromDeflections()}});
}

}  // namespace

std::vector<FormDeclaration> OverlayForms() {
    return {{"OvAA", AsphaltOnAsphaltForm},
            {"OvAFP", AsphaltOnFracturedForm},
            {"OvAP", AsphaltOnConcreteForm},
            {"OvAAP", AsphaltOnCompositeForm},
            {"OvBP", BondedForm},
            {"OvUP", UnbondedForm},
            {"OvWT", WhitetoppingForm}};
}

}  // namespace kelvor
