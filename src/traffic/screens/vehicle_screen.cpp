#include "traffic/screens/vehicle_screen.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "forms/coded_list.h"
#include "forms/field_entry.h"
#include "forms/form.h"
#include "forms/recalculation.h"
#include "platform/translation.h"
#include "traffic/calc/traffic_codes.h"
#include "traffic/screens/traffic_inputs.h"
#include "traffic/screens/traffic_words.h"

namespace kelvor {

namespace {

struct Drawing {
    const char* file;
    double letters;  // its width
    const char* words;
};

/// How a class of vehicles is shown. Its texts are translated where they are shown.
struct Vehicle {
    const char* name;
    std::vector<Drawing> drawings;
};

/// In the order of the classes' axles.
std::array<Vehicle, kVehicleAxles.size()> Vehicles() {
    return {{
        {ToTranslate("2-axle truck, bus"), {{"truck_2.svg", 11.0, ToTranslate("A truck with two axles")}}},
        {ToTranslate("3-axle truck"),
         {{"truck_3.svg", 13.0, ToTranslate("A truck with three axles, two of them a tandem")}}},
        {"2-S1",
         {{"semitrailer_2_s1.svg", 19.0, ToTranslate("A tractor with two axles, a semitrailer with one")}}},
        {"2-S2",
         {{"semitrailer_2_s2.svg", 20.0,
           ToTranslate("A tractor with two axles, a semitrailer with a tandem")}}},
        {"3-S2",
         {{"semitrailer_3_s2.svg", 21.0,
           ToTranslate("A tractor with three axles, a semitrailer with a tandem")}}},
        {"2-S1-2",
         {{"semitrailer_2_s1.svg", 19.0, ToTranslate("A tractor with two axles, a semitrailer with one,")},
          {"trailer_2.svg", 14.0, ToTranslate("and a trailer with two axles behind it")}}},
    }};
}

// --- Layout -------------------------------------------------------------------------------------------

constexpr int kHeadingRow = 0;
constexpr int kUnitRow = 1;
constexpr double kTypeLetters = 7.0;
constexpr double kLoadLetters = 8.0;

enum BlockColumn { kPictureColumn, kNumberColumn, kTypeColumn, kLoadColumn };

std::string Named(const char* start, int axle) { return start + std::to_string(axle); }

void AddHeadings(std::vector<MatrixCell>& elements, int block, int firstAxle) {
    constexpr std::array kHeadings = {"Vehicle", "Number", "Axle Type", "Axle Load"};
    for (int column = kPictureColumn; column <= kLoadColumn; ++column) {
        const std::string name = "Head" + std::to_string(block) + std::to_string(column + 1);
        elements.push_back(
            At(kHeadingRow, column, Caption(name, kHeadings[static_cast<std::size_t>(column)])));
    }
    elements.push_back(At(kUnitRow, kLoadColumn, UnitOf(Named("AW", firstAxle))));
}

/// The drawing, or drawings, of a class with its name below.
LayoutElement Drawings(const Vehicle& vehicle, const VehicleAxles& axles, int& images) {
    std::vector<LayoutElement> rows;
    for (const Drawing& drawing : vehicle.drawings) {
        rows.push_back(SmallPicture("Image" + std::to_string(++images), drawing.file, drawing.letters,
                                    Translated(drawing.words)));
    }
    rows.push_back(Caption(Named("Class", axles.last), Translated(vehicle.name)));
    return Rows(std::move(rows));
}

/// The axles of a class below each other, its count in the first line. An empty row sets the classes apart.
int AddVehicle(std::vector<MatrixCell>& elements, const Vehicle& vehicle, const VehicleAxles& axles, int row,
               int& images) {
    const int count = axles.last - axles.first + 1;
    elements.push_back(At(row, kPictureColumn, Drawings(vehicle, axles, images), count));
    elements.push_back(At(row, kNumberColumn, BareBox({.variable = Named("NA", axles.last)})));
    for (int axle = axles.first; axle <= axles.last; ++axle, ++row) {
        elements.push_back(
            At(row, kTypeColumn,
               BareBox({.variable = Named("AT", axle), .words = AxleTypes(), .letters = kTypeLetters})));
        elements.push_back(
            At(row, kLoadColumn, BareBox({.variable = Named("AW", axle), .letters = kLoadLetters})));
    }
    return row + 1;
}

/// Some of the classes under their headings.
LayoutElement Block(int block, std::size_t first, std::size_t last, int& images) {
    const auto vehicles = Vehicles();
    std::vector<MatrixCell> elements;
    AddHeadings(elements, block, kVehicleAxles.at(first).first);
    int row = kUnitRow + 1;
    for (std::size_t i = first; i <= last; ++i) {
        row = AddVehicle(elements, vehicles.at(i), kVehicleAxles.at(i), row, images);
    }
    return Matrix(std::move(elements));
}

LayoutElement VehicleLayout() {
    int images = 0;
    LayoutElement left = Block(1, 0, 2, images);
    LayoutElement right = Block(2, 3, 5, images);
    return Rows({
        TrafficInputCopies(),
        Columns({Rows({std::move(left), Fields({{.variable = "RIGE18", .label = "Total Rigid ESAL"},
                                                {.variable = "FLEXE18", .label = "Total Flexible ESAL"}})}),
                 Rows({std::move(right)})}),
    });
}

// --- What the screen does -----------------------------------------------------------------------------

/// True if something of the vehicles was entered; a type that was blanked is 0.
bool HasVehicles(const ScreenContext& context, const Form& form) {
    for (const Field* field : context.catalogue.FieldsOfScreen(form.tag)) {
        if (field->equation.empty() && context.calc.store.GetVar(field->name) != 0.0) return true;
    }
    return false;
}

/// A code that is none leaves the box as it stands.
void ShowType(const ScreenContext& context, const Form& form, Control& box) {
    if (!WordOf(box.words, context.calc.store.GetVar(box.tag).value()).empty())
        ShowStoredValue(context, form, box);
}

void ShowTypes(const ScreenContext& context, Form& form) {
    for (const VehicleAxles& axles : kVehicleAxles) {
        for (int axle = axles.first; axle <= axles.last; ++axle) {
            ShowType(context, form, form.Get(Named("AT", axle)));
        }
    }
}

/// With no vehicle at all the design traffic of another route stays.
void Activated(ScreenEvent& event) {
    ShowPeriod(event.context, event.form);
    ShowTypes(event.context, event.form);
    if (HasVehicles(event.context, event.form)) RecalcOutputs(event.context, event.form, "", 0);
}

/// A type that was blanked is stored as the code of none.
void TypeStored(ScreenEvent& event) {
    const Control& box = *event.control;
    if (box.coded && box.text.empty()) StoreCode(event.context, event.form, box);
}

}  // namespace

FormType VehicleForm() {
    FormType type;
    type.name = "TrVe";
    type.caption = "ESAL Conversion From Vehicle Data";
    type.rowName = {ToTranslate("vehicle"), ToTranslate("vehicles")};
    type.layout = VehicleLayout();
    type.handlers = {
        {FormEvent::Activate, "", HandlerOrder::After, Activated},
        {FormEvent::Stored, "", HandlerOrder::After, TypeStored},
    };
    return type;
}

}  // namespace kelvor
