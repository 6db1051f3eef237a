#include "rehab/calc/overlay_equations.h"

#include <array>

#include "design/calc/solve_for.h"

namespace kelvor {

namespace {

constexpr FlexibleNames kAcOfAc = {"ACACFUTSN", "FLEXE18", "ACACREL", "ACACDEV",
                                   "EXISTRM",   "ACACPO",  "ACACPT"};
constexpr FlexibleNames kAcOfFractured = {"ACCSFUTSN", "FLEXE18", "ACCSREL", "ACCSDEV",
                                          "EXISTRM2",  "ACCSPO",  "ACCSPT"};

constexpr RigidNames kAcOfPcc = {"ACPCFUTD", "RIGE18", "ACPCREL", "ACPCDEV", "EXISTMR", "EXISTEC",
                                 "EXISTJ",   "EXISTK", "EXISTC",  "ACPCPO",  "ACPCPT"};
constexpr RigidNames kAcOfComposite = {"ACACPCFUTD", "RIGE18", "ACACPCREL", "ACACPCDEV", "EXISTMR", "EXISTEC",
                                       "EXISTJ",     "EXISTK", "EXISTC",    "ACACPCPO",  "ACACPCPT"};
constexpr RigidNames kBonded = {"BOLFUTDEPTH", "RIGE18", "OLRIGREL", "OLRIGDEV", "EXISTMR", "EXISTEC",
                                "EXISTJ",      "EXISTK", "EXISTC",   "OLFUTPO",  "OLFUTPT"};
constexpr RigidNames kUnbonded = {"UBOLFUTDEPTH", "RIGE18", "OLRIGREL", "OLRIGDEV", "OLMR",   "OLEC",
                                  "OLJ",          "EXISTK", "EXISTC",   "OLFUTPO",  "OLFUTPT"};
constexpr RigidNames kWhitetopping = {"WTDEPTH", "RIGE18", "OLRIGREL", "OLRIGDEV", "OLMR",   "OLEC",
                                      "OLJ",     "EXISTK", "EXISTC",   "OLFUTPO",  "OLFUTPT"};

constexpr std::array kEquations = {
    FlexibleEquation("OvAA", kAcOfAc),    FlexibleEquation("OvAFP", kAcOfFractured),
    RigidEquation("OvAP", kAcOfPcc),      RigidEquation("OvAAP", kAcOfComposite),
    RigidEquation("OvBP", kBonded),       RigidEquation("OvUP", kUnbonded),
    RigidEquation("OvWT", kWhitetopping),
};

}  // namespace

KeyTable OverlayEquations() { return {.solves = kEquations}; }

}  // namespace kelvor
