#include "platform/dialogs.h"

#include <utility>

namespace kelvor {

Answer DefaultAnswer(MessageStyle style) {
    const bool asksYesOrNo = style == MessageStyle::YesNo || style == MessageStyle::YesNoCancel;
    return asksYesOrNo ? Answer::Yes : Answer::Ok;
}

bool HasAnswer(MessageStyle style, Answer answer) {
    switch (style) {
        case MessageStyle::Ok:
            return answer == Answer::Ok;
        case MessageStyle::OkCancel:
            return answer == Answer::Ok || answer == Answer::Cancel;
        case MessageStyle::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
        case MessageStyle::YesNoCancel:
            return answer != Answer::Ok;
    }
    return false;
}

const char* NameOf(MessageStyle style) {
    switch (style) {
        case MessageStyle::Ok:
            return "ok";
        case MessageStyle::OkCancel:
            return "okcancel";
        case MessageStyle::YesNo:
            return "yesno";
        case MessageStyle::YesNoCancel:
            return "yesnocancel";
    }
    return "";
}

const char* NameOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return "none";
        case MessageIcon::Critical:
            return "critical";
        case MessageIcon::Question:
            return "question";
        case MessageIcon::Warning:
            return "warning";
        case MessageIcon::Information:
            return "information";
    }
    return "";
}

const char* NameOf(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return "ok";
        case Answer::Cancel:
            return "cancel";
        case Answer::Yes:
            return "yes";
        case Answer::No:
            return "no";
    }
    return "";
}

std::optional<Answer> AnswerNamed(const std::string& name) {
    for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No}) {
        if (name == NameOf(answer)) return answer;
    }
    return std::nullopt;
}

std::optional<std::string> ScriptedDialogs::NextAnswer() {
    if (answers_.empty()) return std::nullopt;
    std::string answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

Answer ScriptedDialogs::ShowMessage(const Message& message) {
    Answer answer = DefaultAnswer(message.style);
    if (const auto queued = NextAnswer()) {
        const auto named = AnswerNamed(*queued);
        if (named && HasAnswer(message.style, *named)) answer = *named;
    }
    if (observer_ != nullptr) observer_->OnMessage(message, answer);
    return answer;
}

std::optional<std::string> ScriptedDialogs::AskText(const InputRequest& request) {
    std::optional<std::string> answer = NextAnswer();
    if (answer == NameOf(Answer::Cancel)) answer.reset();
    if (observer_ != nullptr) observer_->OnInput(request, answer);
    return answer;
}

std::optional<Path> ScriptedDialogs::AskFile(const FileRequest& request) {
    std::optional<Path> answer;
    if (const auto queued = NextAnswer(); queued && *queued != NameOf(Answer::Cancel)) answer = *queued;
    if (answer && answer->empty()) answer.reset();
    if (observer_ != nullptr) observer_->OnFile(request, answer);
    return answer;
}

const char* NameOf(FileRequest::Kind kind) { return kind == FileRequest::Kind::Open ? "open" : "save"; }

}  // namespace kelvor
