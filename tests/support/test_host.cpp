#include "support/test_host.h"

#include <stdexcept>
#include <utility>

namespace kelvor::test {

void QuestionRecord::OnMessage(const Message& message, Answer answer) {
    messages.push_back(message);
    answers.push_back(answer);
}

void QuestionRecord::OnInput(const InputRequest& request, const std::optional<std::string>& /*answer*/) {
    inputs.push_back(request);
}

void QuestionRecord::OnFile(const FileRequest& request, const std::optional<Path>& /*answer*/) {
    files.push_back(request);
}

std::vector<std::string> QuestionRecord::TakeTexts() {
    std::vector<std::string> texts;
    for (const Message& message : std::exchange(messages, {})) texts.push_back(message.text);
    answers.clear();
    return texts;
}

TestProgram::TestProgram() : program(host.host(), home.home()) {
    if (program.Start("") != StartResult::Running) throw std::runtime_error("the program did not start");
}

}  // namespace kelvor::test
