#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/host.h"
#include "shell/program.h"
#include "support/test_home.h"

namespace kelvor::test {

/// A clock that stands still, or gains a fixed number of seconds at each reading.
class FakeClock : public Clock {
  public:
    double SteadySeconds() override {
        ++readings;
        return seconds += gain;
    }
    std::string Timestamp() override { return timestamp; }

    double seconds = 0.0;
    double gain = 0.0;
    int readings = 0;
    std::string timestamp = "2001-02-03 04:05:06.789";
};

/// Components of which some are missing.
class FakeComponents : public ComponentProbe {
  public:
    bool Prove(Component component) override { return !missing.contains(component); }
    void RegisterComponents() override { ++registrations; }

    std::set<Component> missing;
    int registrations = 0;
};

/// Keeps every question that was asked.
class QuestionRecord : public DialogObserver {
  public:
    void OnMessage(const Message& message, Answer answer) override;
    void OnInput(const InputRequest& request, const std::optional<std::string>& answer) override;
    void OnFile(const FileRequest& request, const std::optional<Path>& answer) override;

    std::vector<Message> messages;
    std::vector<Answer> answers;
    std::vector<InputRequest> inputs;
    std::vector<FileRequest> files;

    /// The texts of the messages since the last call.
    std::vector<std::string> TakeTexts();
};

/// A whole host for a test, with the machine's file system unless told otherwise.
class TestHost {
  public:
    TestHost() : dialogs(&record) {}

    [[nodiscard]] Host host() {
        return {fileSystem != nullptr ? *fileSystem : native, clock, dialogs, components};
    }

    NativeFileSystem native;
    FileSystem* fileSystem = nullptr;
    FakeClock clock;
    FakeComponents components;
    QuestionRecord record;
    ScriptedDialogs dialogs;
};

/// A running program on a home of its own, with a fresh project.
class TestProgram {
  public:
    TestProgram();

    [[nodiscard]] ProjectStore& store() { return program.state().dbWork; }
    [[nodiscard]] Units& units() { return *program.state().units; }
    [[nodiscard]] double Get(const std::string& name) { return store().GetVar(name).value(); }
    void Set(const std::string& name, double value) { store().SetVar(name, value); }

    TestHome home;
    TestHost host;
    Program program;
};

}  // namespace kelvor::test
