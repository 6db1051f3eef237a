#include "platform/dialogs.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

struct StyleRow {
    MessageStyle style;
    const char* name;
    Answer defaultAnswer;
    std::vector<Answer> buttons;
};

std::vector<StyleRow> Styles() {
    return {
        {MessageStyle::Ok, "ok", Answer::Ok, {Answer::Ok}},
        {MessageStyle::OkCancel, "okcancel", Answer::Ok, {Answer::Ok, Answer::Cancel}},
        {MessageStyle::YesNo, "yesno", Answer::Yes, {Answer::Yes, Answer::No}},
        {MessageStyle::YesNoCancel, "yesnocancel", Answer::Yes, {Answer::Yes, Answer::No, Answer::Cancel}}};
}

constexpr Answer kAnswers[] = {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No};

bool Contains(const std::vector<Answer>& answers, Answer answer) {
    for (const Answer one : answers) {
        if (one == answer) return true;
    }
    return false;
}

class DialogsTest : public testing::Test {
  protected:
    [[nodiscard]] Answer Ask(MessageStyle style) {
        Message message;
        message.text = "Save changes?";
        message.style = style;
        return dialogs_.ShowMessage(message);
    }

    QuestionRecord record_;
    ScriptedDialogs dialogs_{&record_};
};

TEST_F(DialogsTest, EveryStyleHasItsButtonsAndItsDefault) {
    for (const StyleRow& style : Styles()) {
        EXPECT_STREQ(NameOf(style.style), style.name);
        EXPECT_EQ(DefaultAnswer(style.style), style.defaultAnswer) << style.name;
        for (const Answer answer : kAnswers) {
            EXPECT_EQ(HasAnswer(style.style, answer), Contains(style.buttons, answer))
                << style.name << " " << NameOf(answer);
        }
    }
}

TEST_F(DialogsTest, AnswersAndIconsHaveNames) {
    EXPECT_STREQ(NameOf(Answer::Ok), "ok");
    EXPECT_STREQ(NameOf(Answer::Cancel), "cancel");
    EXPECT_STREQ(NameOf(Answer::Yes), "yes");
    EXPECT_STREQ(NameOf(Answer::No), "no");
    for (const Answer answer : kAnswers) EXPECT_EQ(AnswerNamed(NameOf(answer)), answer);
    for (const char* name : {"", "maybe", "Ok", "YES", " no", "okcancel"}) {
        EXPECT_EQ(AnswerNamed(name), std::nullopt) << '"' << name << '"';
    }
    EXPECT_STREQ(NameOf(MessageIcon::None), "none");
    EXPECT_STREQ(NameOf(MessageIcon::Critical), "critical");
    EXPECT_STREQ(NameOf(MessageIcon::Question), "question");
    EXPECT_STREQ(NameOf(MessageIcon::Warning), "warning");
    EXPECT_STREQ(NameOf(MessageIcon::Information), "information");
}

TEST_F(DialogsTest, ABoxWithoutATitleHasTheTitleOfTheProgram) {
    EXPECT_EQ(Message().title, "Kelvor");
    EXPECT_EQ(InputRequest().title, "Kelvor");
}

TEST_F(DialogsTest, WithNothingQueuedTheDefaultButtonAnswers) {
    for (const StyleRow& style : Styles()) EXPECT_EQ(Ask(style.style), style.defaultAnswer) << style.name;
    EXPECT_EQ(dialogs_.AskText({}), std::nullopt);
    EXPECT_EQ(dialogs_.AskFile({}), std::nullopt);
}

TEST_F(DialogsTest, AQueuedAnswerPressesItsButtonOrTheDefaultOne) {
    for (const StyleRow& style : Styles()) {
        for (const Answer answer : kAnswers) {
            dialogs_.QueueAnswer(NameOf(answer));
            EXPECT_EQ(Ask(style.style), Contains(style.buttons, answer) ? answer : style.defaultAnswer)
                << style.name << " " << NameOf(answer);
        }
        dialogs_.QueueAnswer("no such button");
        EXPECT_EQ(Ask(style.style), style.defaultAnswer) << style.name;
    }
}

TEST_F(DialogsTest, AnswersAreTakenInTheirOrderByQuestionsOfEveryKind) {
    dialogs_.QueueAnswer("no");
    dialogs_.QueueAnswer("County Road 5");
    dialogs_.QueueAnswer("/projects/a b.kvor");
    dialogs_.QueueAnswer("ok");  // no button of the box that takes it: used up all the same
    dialogs_.QueueAnswer("cancel");
    EXPECT_EQ(Ask(MessageStyle::YesNoCancel), Answer::No);
    EXPECT_EQ(dialogs_.AskText({}), "County Road 5");
    EXPECT_EQ(dialogs_.AskFile({}), Path("/projects/a b.kvor"));
    EXPECT_EQ(Ask(MessageStyle::YesNo), Answer::Yes);
    EXPECT_EQ(Ask(MessageStyle::YesNoCancel), Answer::Cancel);
    EXPECT_EQ(Ask(MessageStyle::YesNoCancel), Answer::Yes);
}

TEST_F(DialogsTest, CancelCancelsEveryQuestion) {
    dialogs_.QueueAnswer("cancel");
    EXPECT_EQ(dialogs_.AskText({}), std::nullopt);
    dialogs_.QueueAnswer("cancel");
    EXPECT_EQ(dialogs_.AskFile({}), std::nullopt);
}

TEST_F(DialogsTest, AnEmptyTextIsAnAnswerAndAnEmptyPathIsNone) {
    dialogs_.QueueAnswer("");
    EXPECT_EQ(dialogs_.AskText({}), "");
    dialogs_.QueueAnswer("");
    EXPECT_EQ(dialogs_.AskFile({}), std::nullopt);
}

/// Writes down what it is told.
class Transcript : public DialogObserver {
  public:
    void OnMessage(const Message& message, Answer answer) override {
        lines.push_back(message.text + ": " + NameOf(answer));
    }
    void OnInput(const InputRequest& request, const std::optional<std::string>& answer) override {
        lines.push_back(request.text + ": " + answer.value_or("nothing"));
    }
    void OnFile(const FileRequest& request, const std::optional<Path>& answer) override {
        lines.push_back(request.filter + ": " + answer.value_or("nothing").string());
    }

    std::vector<std::string> lines;
};

TEST_F(DialogsTest, TheObserverIsToldOfEveryQuestionAndItsAnswer) {
    Transcript transcript;
    ScriptedDialogs dialogs(&transcript);
    for (const char* answer : {"no", "7", "/a.kvor"}) dialogs.QueueAnswer(answer);
    for (int round = 0; round < 2; ++round) {
        dialogs.ShowMessage({"Sure?", "Kelvor", MessageStyle::YesNo, MessageIcon::Question});
        (void)dialogs.AskText({"Name", "Kelvor"});
        (void)dialogs.AskFile({FileRequest::Kind::Open, "/", "*.kvor"});
    }
    EXPECT_EQ(transcript.lines, (std::vector<std::string>{"Sure?: no", "Name: 7", "*.kvor: /a.kvor",
                                                          "Sure?: yes", "Name: nothing", "*.kvor: nothing"}));
}

TEST_F(DialogsTest, WithoutAnObserverQuestionsAreAnsweredToo) {
    ScriptedDialogs dialogs;
    dialogs.QueueAnswer("no");
    EXPECT_EQ(dialogs.ShowMessage({"Sure?", "Kelvor", MessageStyle::YesNo, MessageIcon::None}), Answer::No);
    EXPECT_EQ(dialogs.AskText({}), std::nullopt);
    EXPECT_EQ(dialogs.AskFile({}), std::nullopt);
}

TEST_F(DialogsTest, TheWaitCursorIsOnWhileItIsSet) {
    EXPECT_FALSE(dialogs_.waiting());
    dialogs_.SetWaitCursor(true);
    EXPECT_TRUE(dialogs_.waiting());
    dialogs_.SetWaitCursor(false);
    EXPECT_FALSE(dialogs_.waiting());
}

}  // namespace
}  // namespace kelvor::test
