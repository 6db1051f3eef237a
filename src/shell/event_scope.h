#pragma once

#include "shell/process_state.h"

namespace kelvor {

/// Makes the writes between its making and its end one transaction, and keeps further events out. The forms
/// that were closed by the event before are destroyed when it begins: until then a front end may still look
/// at them, since it is brought in step only after an event.
class EventScope {
  public:
    EventScope(ProcessState& state, bool& running) : state_(state), running_(running) {
        running_ = true;
        state_.formRegistry.DestroyRemoved();
        state_.dbWork.BeginEvent();
    }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;
    ~EventScope() {
        state_.dbWork.EndEvent();
        running_ = false;
    }

  private:
    ProcessState& state_;
    bool& running_;
};

}  // namespace kelvor
