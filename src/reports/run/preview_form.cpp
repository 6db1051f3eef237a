#include "reports/run/preview_form.h"

#include "forms/form.h"
#include "forms/screen_context.h"
#include "reports/run/report_desk.h"

namespace kelvor {

namespace {

void Load(ScreenEvent& event) { event.context.reports.ShowPreview(event.form); }

void FocusOnNext(ScreenEvent& event) { event.form.focus = event.form.Find("NextRep"); }

void Previous(ScreenEvent& event) { event.context.reports.StepPreview(event.context, -1); }

void Next(ScreenEvent& event) { event.context.reports.StepPreview(event.context, 1); }

void Print(ScreenEvent& event) { event.context.reports.PrintPreview(); }

void CloseAll(ScreenEvent& event) { event.context.reports.ClosePreviews(event.context); }

/// Also its close box, and another project, end the previews.
void Closed(ScreenEvent& event) { event.context.reports.DropPreviews(); }

}  // namespace

FormType ReportsPreviewForm() {
    FormType type;
    type.name = kPreviewForm;
    type.caption = "Preview Report";
    type.layout = Rows({ReportView(kPreviewPages),
                        Buttons({{"PreviousRep", "<< P&revious ", Translated("Show the report before")},
                                 {"NextRep", "&Next >>", Translated("Show the next report")},
                                 {"PrintRep", "&Print Report", Translated("Print this report")},
                                 {"Close", "&Close All", Translated("Close all reports")}})});
    type.foot = {};
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, Load},
        {FormEvent::Activate, "", HandlerOrder::After, FocusOnNext},
        {FormEvent::Click, "PreviousRep", HandlerOrder::Instead, Previous},
        {FormEvent::Click, "NextRep", HandlerOrder::Instead, Next},
        {FormEvent::Click, "PrintRep", HandlerOrder::Instead, Print},
        {FormEvent::Click, "Close", HandlerOrder::Instead, CloseAll},
        {FormEvent::Unload, "", HandlerOrder::After, Closed},
    };
    return type;
}

}  // namespace kelvor
