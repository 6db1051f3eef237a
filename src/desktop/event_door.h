#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <utility>

#include "shell/program.h"

namespace kelvor {

/// The one way by which the windows reach the program. After each event the windows are brought in step with
/// the model. A stop of the program never crosses the toolkit's frames: it is handed to `onStop`.
class EventDoor {
  public:
    EventDoor(Program& program, std::function<void()> afterEvent,
              std::function<void(const std::string& reason)> onStop)
        : program_(program), afterEvent_(std::move(afterEvent)), onStop_(std::move(onStop)) {}

    /// Raises an event, unless one is running: then the user's act is dropped.
    void Raise(const UserEvent& event);

    /// Does something else to the program in the same way.
    void Perform(const std::function<void(Program&)>& act);

    /// True while an event runs, and while the windows are brought in step.
    [[nodiscard]] bool busy() const { return busy_; }

    /// The toolkit moves its focus to what the mouse was pressed on before it hands the press over. If the
    /// model refuses that move, the press itself must not ask again: these two hold the refusal until the
    /// act of the user that caused it has ended.
    void NoteRefusal();
    [[nodiscard]] bool wasRefused() const { return refused_; }

    /// True from a press of Space that clicked a button until the key is let go. What the keyboard repeats
    /// meanwhile must not reach whatever has the focus by then.
    bool spaceHeld = false;

    [[nodiscard]] Program& program() { return program_; }

  private:
    Program& program_;
    std::function<void()> afterEvent_;
    std::function<void(const std::string& reason)> onStop_;
    bool busy_ = false;
    bool stopped_ = false;
    bool refused_ = false;
    QObject context_;
};

}  // namespace kelvor
