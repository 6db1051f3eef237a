#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace kelvor {

enum class MessageStyle { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Critical, Question, Warning, Information };
enum class Answer { Ok, Cancel, Yes, No };

/// The title of every message box that names none of its own.
inline constexpr const char* kApplicationTitle = "Kelvor";

struct Message {
    std::string text;
    std::string title = kApplicationTitle;
    MessageStyle style = MessageStyle::Ok;
    MessageIcon icon = MessageIcon::None;
};

struct InputRequest {
    std::string text;
    std::string title = kApplicationTitle;
};

struct FileRequest {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    Path folder;  // in which it starts; for saving also a file, whose name is then proposed
    std::string filter;
    std::string suffix = {};        // which a name to save under gets that has none, before it is looked for
    std::string title = {};         // empty: that of opening or saving a project
    Path suggested = {};            // the name or path to save to that is offered; empty: none
    std::vector<Path> places = {};  // folders that a dialog may offer beside the one it starts in
};

struct HelpRequest {
    Path file;
    std::string page = {};  // the name of the form it tells of; empty: the contents
};

/// What is shown while the program works: not a question, and gone when the work is done.
struct WaitNotice {
    std::string title = "Please Wait";
    std::string text = {};
    std::size_t done = 0;
    std::size_t steps = 0;
};

/// A file to be printed, in the format PDF.
struct PrintRequest {
    Path file;
    std::string title;
};

/// Everything that asks the user something. Each call returns when the user has answered.
class Dialogs {
  public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    virtual Answer ShowMessage(const Message& message) = 0;

    /// The text entered, or nothing if the user cancelled.
    virtual std::optional<std::string> AskText(const InputRequest& request) = 0;

    /// The path chosen, or nothing if the user cancelled.
    virtual std::optional<Path> AskFile(const FileRequest& request) = 0;

    virtual void SetWaitCursor(bool on) = 0;

    /// Shows a notice, or changes the one that shows. A front end without windows shows none.
    virtual void ShowWait(const WaitNotice& /*notice*/) {}
    virtual void HideWait() {}

    /// Prints a file, which may be removed when the call returns. The reason if it cannot be printed; nothing
    /// if it was, or if the user does not want it after all.
    virtual std::optional<std::string> Print(const PrintRequest& /*request*/) {
        return "there is no printer here";
    }

    /// Opens the help file beside the program, and returns at once. A front end without windows shows none,
    /// and a failure is not told.
    virtual void ShowHelp(const HelpRequest& /*request*/) {}
};

/// The answer of a box whose default button is pressed.
Answer DefaultAnswer(MessageStyle style);

/// True if a box of this style has the button.
bool HasAnswer(MessageStyle style, Answer answer);

const char* NameOf(MessageStyle style);
const char* NameOf(MessageIcon icon);
const char* NameOf(Answer answer);
const char* NameOf(FileRequest::Kind kind);
std::optional<Answer> AnswerNamed(const std::string& name);

/// Told of every question that ScriptedDialogs answers, with its answer.
class DialogObserver {
  public:
    DialogObserver() = default;
    DialogObserver(const DialogObserver&) = delete;
    DialogObserver& operator=(const DialogObserver&) = delete;
    virtual ~DialogObserver() = default;

    virtual void OnMessage(const Message& message, Answer answer) = 0;
    virtual void OnInput(const InputRequest& request, const std::optional<std::string>& answer) = 0;
    virtual void OnFile(const FileRequest& request, const std::optional<Path>& answer) = 0;
};

/// Dialogs answered from a queue. With nothing queued, or with an answer for which the box has no
/// button, the default button answers; an input box and a file dialog are then cancelled.
class ScriptedDialogs : public Dialogs {
  public:
    explicit ScriptedDialogs(DialogObserver* observer = nullptr) : observer_(observer) {}

    void QueueAnswer(std::string answer) { answers_.push_back(std::move(answer)); }
    void DropAnswers() { answers_.clear(); }

    Answer ShowMessage(const Message& message) override;
    std::optional<std::string> AskText(const InputRequest& request) override;
    std::optional<Path> AskFile(const FileRequest& request) override;
    void SetWaitCursor(bool on) override { waiting_ = on; }

    [[nodiscard]] bool waiting() const { return waiting_; }

  private:
    std::optional<std::string> NextAnswer();

    DialogObserver* observer_;
    std::deque<std::string> answers_;
    bool waiting_ = false;
};

}  // namespace kelvor
