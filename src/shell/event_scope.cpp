#include "shell/event_scope.h"

#include <utility>

namespace kelvor {

namespace {

/// The open forms as they are, once those that the event before has closed are gone.
FormRegistry::Image ImageOfOpenForms(FormRegistry& forms) {
    forms.DestroyRemoved();
    return forms.TakeImage();
}

}  // namespace

EventScope::EventScope(ProcessState& state, bool& running)
    : state_(state),
      running_(running),
      openings_(state.dbWork.openings()),
      open_(state.dbWork.IsOpen()),
      forms_(ImageOfOpenForms(state.formRegistry)),
      marks_(TakeMarks()) {
    running_ = true;
    state_.act.clear();
    state_.dbWork.BeginEvent();
}

EventScope::~EventScope() {
    state_.dbWork.EndEvent();
    running_ = false;
}

EventScope::Marks EventScope::TakeMarks() const {
    return {state_.balance, state_.bProjectChanged, state_.units && state_.units->bMetric(),
            state_.reliability, state_.formValues};
}

bool EventScope::HasSameProject() const {
    return state_.dbWork.openings() == openings_ && state_.dbWork.IsOpen() == open_;
}

void EventScope::Undo() {
    state_.dbWork.UndoEvent();
    if (!HasSameProject()) {
        state_.formRegistry.RemoveOpenedSince(forms_);
        return;
    }
    state_.formRegistry.BecomeAgain(std::move(forms_));
    state_.balance = marks_.balance;
    state_.bProjectChanged = marks_.projectChanged;
    if (state_.units) state_.units->SetMetric(marks_.metric);
    state_.reliability = marks_.reliability;
    state_.formValues = marks_.formValues;
}

}  // namespace kelvor
