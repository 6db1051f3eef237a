#pragma once

#include "shell/process_state.h"

namespace kelvor {

/// One event: makes the writes between its making and its end one transaction, and keeps further events out.
/// The forms that were closed by the event before are destroyed when it begins: until then a front end may
/// still look at them, since it is brought in step only after an event.
class EventScope {
  public:
    EventScope(ProcessState& state, bool& running);
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;
    ~EventScope();

    /// Makes everything what it was before the event: the cells, the forms, what is marked as changed and the
    /// unit system. If the event has opened another project, or this one anew, then that one stays, and only
    /// what was written since then and the forms opened since then go.
    void Undo();

    /// What a fault takes back, beside cells and forms.
    struct Marks {
        BalanceFlags balance;
        bool projectChanged = false;
        bool metric = false;
        ReliabilityState reliability;
        FormValues formValues;
    };

    /// The marks and the open forms as the event found them.
    [[nodiscard]] const Marks& marks() const { return marks_; }
    [[nodiscard]] const FormRegistry::Image& forms() const { return forms_; }

    /// False once the event has opened another project, or this one anew.
    [[nodiscard]] bool HasSameProject() const;

  private:
    [[nodiscard]] Marks TakeMarks() const;

    ProcessState& state_;
    bool& running_;

    // At the beginning:
    int openings_;  // of the store
    bool open_;
    FormRegistry::Image forms_;
    Marks marks_;
};

}  // namespace kelvor
