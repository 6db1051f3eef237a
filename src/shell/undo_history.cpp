#include "shell/undo_history.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

#include "forms/field_entry.h"
#include "forms/form_events.h"
#include "forms/indicator.h"
#include "forms/recalculation.h"
#include "forms/side_screen.h"
#include "shell/hub/hub.h"

namespace kelvor {

namespace {

/// So many steps are kept at least, and at most; between them the oldest go when the cells of all grow too
/// many.
constexpr std::size_t kLeastSteps = 1'000;
constexpr std::size_t kMostSteps = 2'000;
constexpr std::size_t kMostCells = 400'000;

/// Cells by which the program remembers how it stands, not what the user has entered.
constexpr std::array<std::string_view, 2> kBookkeeping = {"FieldChanged", "MetricMode"};

bool IsBookkeeping(const CellChange& change) {
    return std::any_of(kBookkeeping.begin(), kBookkeeping.end(),
                       [&](std::string_view name) { return EqualNoCase(change.cell.name, name); });
}

using Place = std::tuple<std::string, int, int>;

Place PlaceOf(const CellChange& change) { return {change.cell.name, change.cell.dim1, change.cell.dim2}; }

/// One change of each cell out of two that follow each other.
std::vector<CellChange> Compose(const std::vector<CellChange>& first, std::vector<CellChange> second) {
    if (first.empty()) return second;
    std::map<Place, CellChange> changes;
    for (const CellChange& change : first) changes.emplace(PlaceOf(change), change);
    for (CellChange& change : second) {
        const auto [at, added] = changes.emplace(PlaceOf(change), change);
        if (!added) at->second.after = std::move(change.after);
    }
    std::vector<CellChange> composed;
    for (auto& [place, change] : changes) {
        if (!(change.before == change.after)) composed.push_back(std::move(change));
    }
    return composed;
}

// --- Looks ------------------------------------------------------------------------------------------

ControlLook LookOf(const Control& control) {
    return {control.text,    control.backColor, control.foreColor, control.enabled,
            control.visible, control.locked,    control.value,     control.bold};
}

/// Without a copy of either: most controls look after an event as they did before it.
bool LooksAlike(const Control& a, const Control& b) {
    const auto parts = [](const Control& control) {
        return std::tie(control.text, control.backColor, control.foreColor, control.enabled, control.visible,
                        control.locked, control.value, control.bold);
    };
    return parts(a) == parts(b);
}

/// A box and a unit show what the cells and the unit system say.
bool ShowsItsOwnText(const Control& control) {
    const bool unit = control.kind == ControlKind::Label && control.tag.starts_with('u');
    return control.kind != ControlKind::TextBox && !unit;
}

void TakeOn(Control& control, const ControlLook& look) {
    if (ShowsItsOwnText(control) || control.travels) control.text = look.text;
    control.backColor = look.backColor;
    control.foreColor = look.foreColor;
    control.enabled = look.enabled;
    control.visible = look.visible;
    control.locked = look.locked;
    control.value = look.value;
    control.bold = look.bold;
}

FormLook Compare(const Form& form, const Form::Image& before) {
    FormLook look{form.name(), form.dim2(), before.state.equations, form.equations, {}};
    const std::size_t count = std::min(before.controls.size(), form.controls().size());
    for (std::size_t i = 0; i < count; ++i) {
        const Control& then = before.controls[i];
        const Control& now = *form.controls()[i];
        if (!LooksAlike(then, now)) look.controls.push_back({i, LookOf(then), LookOf(now)});
    }
    return look;
}

std::vector<FormLook> CompareForms(const FormRegistry& forms, const FormRegistry::Image& before) {
    std::vector<FormLook> looks;
    const std::vector<Form*>& open = forms.InOpeningOrder();
    for (const auto& [form, image] : before.stack) {
        if (std::find(open.begin(), open.end(), form) == open.end()) continue;
        FormLook look = Compare(*form, image);
        if (!look.controls.empty() || look.equationsBefore != look.equationsAfter)
            looks.push_back(std::move(look));
    }
    return looks;
}

/// The screen in which an event took place: one that the user can be brought back to.
const Form* ScreenOf(const ProcessState& state, const EventScope& event) {
    const std::vector<Form*>& open = state.formRegistry.InOpeningOrder();
    const Form* const before = event.forms().current;
    const bool stays = std::find(open.begin(), open.end(), before) != open.end();
    const bool serves = stays && (before->modal || before->type().isHelp);
    return stays && !serves ? before : state.formRegistry.CurrentForm;
}

// --- Travelling ---------------------------------------------------------------------------------------

/// Puts the cells where they are to be, and holds them there against what screens work out when they show.
class CellTargets {
  public:
    CellTargets(ProjectStore& store, const std::vector<CellChange>& changes, bool back) : store_(store) {
        for (const CellChange& change : changes)
            targets_.emplace(PlaceOf(change), back ? change.before : change.after);
    }

    /// True if a cell was not where it is to be.
    bool Hold() {
        bool moved = false;
        for (const auto& [place, value] : targets_) moved = Put(place, value) || moved;
        for (const CellChange& change : store_.EventChanges()) {
            if (!targets_.contains(PlaceOf(change))) moved = Put(PlaceOf(change), change.before) || moved;
        }
        return moved;
    }

  private:
    bool Put(const Place& place, const CellValue& value) {
        const auto& [name, dim1, dim2] = place;
        const CellValue* cell = store_.FindCell(name, dim1, dim2);
        if (cell == nullptr || *cell == value) return false;
        store_.SetCell(name, dim1, dim2, value);
        return true;
    }

    ProjectStore& store_;
    std::map<Place, CellValue> targets_;
};

/// The indicators of the open forms at one moment, and the hidden boxes in which they keep what they know: a
/// screen that only shows other values keeps both.
class KeptIndicators {
  public:
    explicit KeptIndicators(const FormRegistry& forms) {
        for (Form* form : forms.InOpeningOrder()) kept_.push_back({form, form->dim2(), form->equations, {}});
        for (Kept& kept : kept_) {
            for (std::size_t i = 0; i < kept.equations.size(); ++i) {
                if (Control* indicator = IndicatorLabel(*kept.form, i))
                    kept.looks.emplace_back(indicator, LookOf(*indicator));
            }
            for (const auto& control : kept.form->controls()) {
                if (control->travels) kept.looks.emplace_back(control.get(), LookOf(*control));
            }
        }
    }

    /// On the forms that are still open and show the same slice.
    void PutBack(const FormRegistry& forms) {
        const std::vector<Form*>& open = forms.InOpeningOrder();
        for (const Kept& kept : kept_) {
            if (std::find(open.begin(), open.end(), kept.form) == open.end()) continue;
            if (kept.form->dim2() != kept.dim2) continue;
            kept.form->equations = kept.equations;
            for (const auto& [control, look] : kept.looks) TakeOn(*control, look);
        }
    }

  private:
    struct Kept {
        Form* form;
        std::optional<int> dim2;
        std::vector<EquationState> equations;
        std::vector<std::pair<Control*, ControlLook>> looks;
    };

    std::vector<Kept> kept_;
};

void BringToFront(ScreenContext& context, const UndoStep& step) {
    const FormType* type = context.forms.FindType(step.form);
    Form* open = context.forms.Find(step.form);
    // A form that serves another one is not opened for itself.
    if (type == nullptr || (open == nullptr && (type->modal || type->isHelp))) return;
    FormEvents events(context);
    if (type->isHub && open != nullptr) {
        events.Activate(*open);
        if (open->page() != step.page) EnterHubTab(context, *open, static_cast<HubTab>(step.page));
    } else if (open != nullptr && open->dim2() == step.dim2) {
        events.Activate(*open);
    } else if (context.catalogue.FindScreen(type->tag) != nullptr || open != nullptr) {
        events.Open({.form = step.form, .dim2 = step.dim2});
    }
}

void TakeOnLooks(FormRegistry& forms, const std::vector<FormLook>& looks, bool back) {
    for (const FormLook& look : looks) {
        Form* form = forms.Find(look.form);
        if (form == nullptr || form->dim2() != look.dim2) continue;
        form->equations = back ? look.equationsBefore : look.equationsAfter;
        for (const FormLook::Difference& difference : look.controls) {
            if (difference.control >= form->controls().size()) continue;
            TakeOn(*form->controls()[difference.control], back ? difference.before : difference.after);
        }
    }
}

/// The cells are held against what the screens have worked out, and are shown as they are.
void ShowStored(ScreenContext& context) {
    for (Form* form : context.forms.InOpeningOrder()) {
        if (!form->type().needsProject) continue;
        RefreshScreen(context, *form);
        for (const auto& control : form->controls()) {
            if (control->coded && control->IsField()) ShowStoredValue(context, *form, *control);
        }
    }
}

}  // namespace

// --- Recording ------------------------------------------------------------------------------------------

void UndoHistory::Record(const ProcessState& state, const EventScope& event,
                         std::vector<CellChange> changes) {
    if (std::exchange(project_, state.projects) != state.projects) {
        *this = {};
        project_ = state.projects;
        return;
    }
    if (!event.HasSameProject()) return;  // saved: the same cells, opened anew
    if (changes.empty()) return;
    if (state.act.empty() || std::all_of(changes.begin(), changes.end(), IsBookkeeping)) {
        if (unnamed_.empty()) unnamedMetric_ = event.marks().metric;
        unnamed_ = Compose(unnamed_, std::move(changes));
        return;
    }
    UndoStep step;
    step.act = state.act;
    if (const Form* screen = ScreenOf(state, event)) {
        step.form = screen->name();
        step.dim2 = screen->dim2();
        step.page = screen->page();
    }
    step.metric = event.marks().metric;
    step.metricAfter = state.units->bMetric();
    if (step.metric != step.metricAfter) step.switchedTo = step.metricAfter;
    step.cells = std::move(changes);
    SettleUnnamed(step);
    step.balanceBefore = event.marks().balance;
    step.balanceAfter = state.balance;
    step.looks = CompareForms(state.formRegistry, event.forms());
    Add(std::move(step));
}

/// What screens have worked out since the last step followed from it, and is taken back with it alone: the
/// steps after it find it as they left it. What came before the first step goes with that, so that taking all
/// back leads to the start.
void UndoHistory::SettleUnnamed(UndoStep& next) {
    if (unnamed_.empty()) return;
    const std::vector<CellChange> derived = std::exchange(unnamed_, {});
    if (done_ == 0) {
        next.cells = Compose(derived, std::move(next.cells));
        next.metric = unnamedMetric_;
        return;
    }
    UndoStep& last = steps_[done_ - 1];
    cells_ -= last.cells.size();
    last.cells = Compose(last.cells, derived);
    last.metricAfter = next.metric;  // quantities of costs may have been brought over to another system
    cells_ += last.cells.size();
}

void UndoHistory::Add(UndoStep step) {
    for (; steps_.size() > done_; steps_.pop_back()) cells_ -= steps_.back().cells.size();
    cells_ += step.cells.size();
    steps_.push_back(std::move(step));
    const auto areTooMany = [this] {
        return steps_.size() > kMostSteps || (steps_.size() > kLeastSteps && cells_ > kMostCells);
    };
    for (; areTooMany(); steps_.pop_front()) cells_ -= steps_.front().cells.size();
    done_ = steps_.size();
}

// --- Undoing and redoing --------------------------------------------------------------------------------

const std::string* UndoHistory::NextUndo() const { return done_ == 0 ? nullptr : &steps_[done_ - 1].act; }

const std::string* UndoHistory::NextRedo() const {
    return done_ == steps_.size() ? nullptr : &steps_[done_].act;
}

std::optional<std::string> UndoHistory::Undo(ProcessState& state) {
    if (done_ == 0) return std::nullopt;
    UndoStep step = steps_[done_ - 1];
    step.cells = Compose(step.cells, unnamed_);
    if (!unnamed_.empty()) step.metricAfter = state.units->bMetric();
    Travel(state, step, Way::Back);
    --done_;
    cells_ += step.cells.size() - steps_[done_].cells.size();
    steps_[done_] = std::move(step);
    return steps_[done_].act;
}

std::optional<std::string> UndoHistory::Redo(ProcessState& state) {
    if (done_ == steps_.size()) return std::nullopt;
    // What was worked out since the step was taken back goes first, so that all is again as it was.
    UndoStep step = steps_[done_];
    for (CellChange& change : unnamed_) std::swap(change.before, change.after);
    step.cells = Compose(unnamed_, std::move(step.cells));
    Travel(state, step, Way::Forth);
    return steps_[done_++].act;
}

void UndoHistory::Travel(ProcessState& state, const UndoStep& step, Way way) {
    const bool back = way == Way::Back;
    ScreenContext context = state.MakeScreenContext();
    CellTargets targets(state.dbWork, step.cells, back);
    KeptIndicators indicators(context.forms);
    // The cells need the unit system in which they were. The user keeps his, unless he switched in this step.
    const bool before = state.units->bMetric();
    const bool after = step.switchedTo ? (back ? !*step.switchedTo : *step.switchedTo) : before;
    state.units->SetMetric(back ? step.metric : step.metricAfter);
    targets.Hold();
    state.balance = back ? step.balanceBefore : step.balanceAfter;
    BringToFront(context, step);
    for (Form* form : std::vector<Form*>(context.forms.InOpeningOrder())) {
        if (form->type().isHub || form->type().needsProject) FormEvents(context).ShowAnew(*form);
    }
    if (targets.Hold()) ShowStored(context);
    state.balance = back ? step.balanceBefore : step.balanceAfter;
    indicators.PutBack(context.forms);
    TakeOnLooks(context.forms, step.looks, back);
    for (Form* form : std::vector<Form*>(context.forms.InOpeningOrder()))
        FormEvents(context).AfterTravel(*form);
    state.bProjectChanged = true;
    unnamed_.clear();
    // Only the page in front was brought over at a switch of units: another may come in front as it was.
    const Form* front = context.forms.CurrentForm;
    const auto isOther = front == nullptr ? nullptr : front->type().standsInOtherUnits;
    if (after != state.units->bMetric() || (isOther != nullptr && isOther(context))) KeepUnits(state, after);
}

/// Goes on in the unit system that the user has, with what the screen in front shows brought over to it, and
/// notes what that changes: the next journey begins where this one came to.
void UndoHistory::KeepUnits(ProcessState& state, bool metric) {
    std::vector<CellChange> travelled = state.dbWork.EventChanges();
    for (CellChange& change : travelled) std::swap(change.before, change.after);
    unnamedMetric_ = state.units->bMetric();
    state.units->SetMetric(metric);
    ScreenContext context = state.MakeScreenContext();
    FormEvents(context).AfterUnitSwitch();
    unnamed_ = Compose(travelled, state.dbWork.EventChanges());
}

}  // namespace kelvor
