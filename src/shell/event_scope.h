#pragma once

#include "shell/process_state.h"

namespace kelvor {

/// Makes the writes between its making and its end one transaction, and keeps further events out.
class EventScope {
  public:
    EventScope(ProcessState& state, bool& running) : state_(state), running_(running) {
        running_ = true;
        state_.dbWork.BeginEvent();
    }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;
    ~EventScope() {
        state_.dbWork.EndEvent();
        state_.formRegistry.DestroyRemoved();
        running_ = false;
    }

  private:
    ProcessState& state_;
    bool& running_;
};

}  // namespace kelvor
