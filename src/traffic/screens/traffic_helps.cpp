#include "traffic/screens/traffic_helps.h"

#include <utility>

#include "forms/form.h"
#include "forms/side_screen.h"
#include "traffic/screens/distribution.h"

namespace kelvor {

namespace {

void Stored(ScreenEvent& event) { event.form.workedOut = true; }

void Closing(ScreenEvent& event) { ReturnFromSideScreen(event.context, event.form, event.form.workedOut); }

void LoadDistribution(ScreenEvent& event) { OfferDistribution(event.context, event.form); }

/// A help with several fields, which are those of the project.
FormType LiveHelp(const char* name, const char* caption, std::vector<LayoutElement> rows) {
    FormType type;
    type.name = name;
    type.caption = caption;
    type.modal = true;
    type.isHelp = true;
    type.layout = Rows(std::move(rows));
    type.foot = {BackToFieldButton(kOkButton)};
    type.handlers = {{FormEvent::Stored, "", HandlerOrder::After, Stored},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace

FormType TrafficInputHelp() {
    return LiveHelp(
        "H_TrIn", "Help Screen for Traffic Inputs",
        {Text(
             "Label1",
             "ESAL calculation by Traffic Factors approximates the ESALs that a roadway will carry over its "
             "design life based on the average traffic that uses the roadway.  Because exact axle weights "
             "and configurations are not used, it is not as precise an ESAL calculation as when ESALs are "
             "based on axle data or vehicle type.  Furthermore, this procedure recognizes that it is truck "
             "traffic that is the major cause of damage.  As such traffic must be converted into the average "
             "daily truck volume."),
         Text("Label2",
              "Average Daily Traffic (ADT) is the average number of vehicles that use the road each day."),
         Text("Label3", "% Heavy Trucks is the percentage of trucks in the ADT"),
         Text("Label4",
              "Average Daily Truck Traffic (ADTT) is average number of trucks that use the road each day.  "),
         Fields({{"TrInADT"}, {"TrInPerTruck"}, {"TrInADTT"}})});
}

FormType TrafficFactorsHelp() {
    return LiveHelp(
        "H_TrFa", "Help Screen for Traffic Factors",
        {Text("Label1",
              "Traffic Factors approximate the average ESAL per truck.  It is based on historical data that "
              "tells, on average, the weights and axle configurations of all the trucks that use the "
              "roadway.  Because exact axle weights and configurations are not used, it is not as precise an "
              "ESAL calculation as when ESALs are based on axle data or vehicle type."),
         Text("Label2",
              "Traffic Factors can be calculated using average weights and configuration values in the axle "
              "data or vehicle type screens, or in many cases, they can be obtained from the State DOT"),
         Fields({{"TrInFESAL"}, {"TrInRESAL"}})});
}

FormType DistributionHelp() {
    FormType type = LiveHelp(
        "H_TrDLD", "Help Screen for Design Lane Distribution and Directional Distribution ",
        {Text(
             "Label1",
             "The AASHTO Design Procedure determines thickness based on traffic in the design lane.  Unless "
             "specifically furnished, the designer must account for the traffic in each lane and direction."),
         Text("Label2", "AASHTO uses the following equation:"),
         Text("Label3", "                      Design Lane Traffic = Total Traffic * DLD * DD"),
         Caption("Label4", "Design Lane Distribution (DLD):"),
         Text("Label5",
              "The Design lane Distribution accounts for the distribution of traffic when two or more lanes "
              "are available in one direction, expressed as a percentage.     A 50% Design Lane Distribution "
              "means that half the vehicles are in one lane and the other half are in the other.  A 100% "
              "Design Lane Distribution means all vehicles are in the design lane."),
         Caption("Label6", "Directional Distribution (DD):"),
         Text("Label7",
              "The Directional Distribution accounts for the distribution of traffic by direction (i.e. "
              "east-west, north-south, in-out). expressed as a percentage.  A 50% Directional Distribution "
              "means that half the vehicles are going one direction and the other half are going the other.  "
              "A 100% Directional Distribution means all vehicles are going in the same direction."),
         Fields({{"TRDIRDIS"}, {"TRLANDIS"}})});
    type.handlers.push_back({FormEvent::Load, "", HandlerOrder::After, LoadDistribution});
    return type;
}

}  // namespace kelvor
