#include <array>
#include <cstdlib>

#include "console/model_driver.h"
#include "console/script/command_line.h"
#include "endurance/endurance.h"
#include "endurance/file_calls.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

namespace kelvor::test {

namespace {

/// What the session enters to find its work again: a variable that nothing works out.
const char* const kMarker = "RIGE18";
constexpr double kMarkerOfOther = 77.0;

const char* const kList = "Axle Types";
const char* const kEntry = "Quad";

/// A home to which a session does something, and which is put back before the next one.
class SessionHome {
  public:
    SessionHome() {
        for (const char* name : kWritten) contents_.push_back(ReadFile(home_ / name));
    }

    void PutBack() const {
        for (const char* name :
             {"Kept", "kvrwork.tmp", "kvrwork.tmp-journal", "kvrwork.uns", "kvrwork.sav", "kvrwork.lck",
              "kvrrport.tmp", "DataBase/custom.tpl-journal", "DataBase/Kelvor.mdb-journal"}) {
            std::filesystem::remove_all(home_ / name);
        }
        for (std::size_t i = 0; i < kWritten.size(); ++i) WriteFile(home_ / kWritten[i], contents_[i]);
    }

    [[nodiscard]] Home home() const {
        Home home = home_.home();
        home.attended = true;  // with the former version kept at a save
        return home;
    }
    Path operator/(const std::string& name) const { return home_ / name; }

  private:
    static constexpr std::array kWritten = {"kvor.ini", "DataBase/Kelvor.mdb", "DataBase/custom.tpl"};

    SmallHome home_;
    std::vector<std::string> contents_;
};

/// A user's session, step by step. While a step acts, file calls count.
class Session {
  public:
    explicit Session(const SessionHome& home) : home_(home) {
        WriteFile(Other(), ReadFile(home / "kvrwork.tpl"));
        RunSql(Other(),
               std::string("UPDATE Project SET RValue = 77, SValue = '77' WHERE Name = '") + kMarker + "'");
    }

    [[nodiscard]] const Path& folder() const { return folder_.path(); }
    [[nodiscard]] Path Project() const { return folder_ / "first.kvr"; }
    [[nodiscard]] Path Other() const { return folder_ / "other.kvr"; }

    Program& program() { return *program_; }
    ProcessState& state() { return program_->state(); }
    TestHost& host() { return host_; }
    ModelDriver Driver() {
        return {*program_, [this](const std::string& answer) { host_.dialogs.QueueAnswer(answer); }};
    }

    bool Start() {
        program_.reset();
        program_.emplace(host_.host(), home_.home());
        return program_->Start("") == StartResult::Running;
    }
    void End() { program_.reset(); }

    void Enter(double value) {
        entered_ = value;
        program_->SetValue(kMarker, 1, 1, std::to_string(value));
    }

    [[nodiscard]] bool IsOpen(double marker) {
        return state().dbWork.IsOpen() && state().dbWork.GetVar(kMarker) == marker;
    }
    [[nodiscard]] bool IsSaved() const {
        return std::filesystem::exists(Project()) && NumberInFile(Project(), kMarker) == entered_;
    }

    /// True if what was entered last is open, or in the project's file, or kept aside.
    [[nodiscard]] bool HasWork() {
        if (entered_ == 0.0 || IsSaved()) return true;
        if (program_ && program_->state().dbWork.IsOpen() &&
            program_->state().dbWork.GetVar(kMarker) == entered_)
            return true;
        const Path kept = home_ / "Kept";
        if (!std::filesystem::exists(kept)) return false;
        const std::vector<std::string> names = NamesIn(kept);
        return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return name.ends_with(".kvr") && NumberInFile(kept / name, kMarker) == entered_;
        });
    }

  private:
    const SessionHome& home_;
    TemporaryFolder folder_;
    TestHost host_;
    std::optional<Program> program_;
    double entered_ = 0.0;
};

/// Something that a user does, and what is true once it has come about.
struct Step {
    const char* what = "";
    void (*act)(Session&) = nullptr;
    bool (*done)(Session&) = nullptr;
    bool shows = false;  // that it did not come about is to be seen, and not said
};

void EnterDesign(Session& session) {
    session.program().Raise({UserEvent::Kind::OpenForm, "DeF"});
    for (const auto& [name, value] :
         {std::pair("FLEXE18", "5000000"), std::pair("FLEXREL", "95"), std::pair("FLEXDEV", "0.45"),
          std::pair("RM", "5000"), std::pair("FLEXPO", "4.2")}) {
        session.program().SetValue(name, 1, 1, value);
    }
    ModelDriver driver = session.Driver();
    driver.Focus("FLEXPT");
    driver.Type("2.5");
    driver.Key("Enter");
}

void Solve(Session& session) {
    ModelDriver driver = session.Driver();
    driver.Focus("SN");
    driver.Press("Command1");
}

void AddToList(Session& session) {
    ModelDriver driver = session.Driver();
    driver.SwitchTab(6);
    driver.Choose("CustCombo", kList);
    driver.Press("cmdbAddMaint");
    driver.Type(kEntry);
    driver.Key("Enter");
}

bool HasEntry(Session& session) {
    const std::vector<ListRow> rows = session.state().dbCustom->Rows(kList);
    return std::any_of(rows.begin(), rows.end(), [](const ListRow& row) { return row.value == kEntry; });
}

void MakeReport(Session& session) {
    ModelDriver driver = session.Driver();
    driver.OpenForm("DeF", 0);
    driver.PrintReport();
    driver.WritePreview(1, session.folder() / "page.html");
    driver.Press("Close");
}

void ExportReport(Session& session) {
    ModelDriver driver = session.Driver();
    driver.SwitchTab(5);
    const Form* hub = session.state().formRegistry.CurrentForm;
    if (hub != nullptr && hub->Find("rbNDopF") != nullptr && !hub->Find("rbNDopF")->value) {
        driver.Choose("rbNDopF", "");
    }
    session.host().dialogs.DropAnswers();
    session.host().dialogs.QueueAnswer("Bid");
    driver.ExportReports();
}

constexpr std::array kSteps = {
    Step{"start", [](Session& s) { s.Start(); },
         [](Session& s) { return s.IsOpen(0.0) && !s.state().dbCustom->Descriptions().empty(); }},
    Step{"new", [](Session& s) { s.program().NewProject(); }, [](Session& s) { return s.IsOpen(0.0); }},
    Step{"enter a design", EnterDesign, [](Session& s) { return s.state().dbWork.GetVar("FLEXPT") == 2.5; }},
    Step{"solve", Solve, [](Session& s) { return s.state().dbWork.GetVar("SN") > 5.0; }},
    Step{"mark", [](Session& s) { s.Enter(1.5); }, [](Session& s) { return s.IsOpen(1.5); }},
    Step{"add to a list", AddToList, HasEntry, true},
    Step{"save", [](Session& s) { s.program().SaveAs(s.Project().string()); },
         [](Session& s) { return s.IsSaved(); }},
    Step{"report", MakeReport,
         [](Session& s) { return ReadFile(s.folder() / "page.html").find("</html>") != std::string::npos; }},
    Step{"export", ExportReport,
         [](Session& s) {
             return std::filesystem::exists(s.folder() / "ExportDt/Bid_first_Flexible Design Inputs.rtf");
         }},
    Step{"change", [](Session& s) { s.Enter(2.5); }, [](Session& s) { return s.IsOpen(2.5); }},
    Step{"save again", [](Session& s) { s.program().Save(); }, [](Session& s) { return s.IsSaved(); }},
    Step{"change again", [](Session& s) { s.Enter(3.5); }, [](Session& s) { return s.IsOpen(3.5); }},
    Step{"open", [](Session& s) { s.program().OpenProject(s.Other().string()); },
         [](Session& s) { return s.IsOpen(kMarkerOfOther); }},
    Step{"recover", [](Session& s) { s.program().Recover(0); }, [](Session& s) { return s.IsOpen(3.5); }},
    Step{"save what was recovered", [](Session& s) { s.program().SaveAs(s.Project().string()); },
         [](Session& s) { return s.IsSaved(); }},
    Step{"end", [](Session& s) { s.End(); }, [](Session&) { return true; }},
    Step{"start again", [](Session& s) { s.Start(); }, [](Session& s) { return s.IsOpen(0.0); }},
};

/// True if it came about. `told` is what was said meanwhile.
bool Try(Session& session, const Step& step, std::string& told) {
    Forget(session.host().record);
    told.clear();
    try {
        step.act(session);
    } catch (const ScriptError& refusal) {
        told = refusal.what();
    }
    const FileCalls::Pause pause;
    for (const std::string& text : session.host().record.TakeTexts()) told += text;
    try {
        return step.done(session);
    } catch (const std::exception&) {
        return false;
    }
}

/// Each step comes about, or says why not; then it comes about the second time. Nothing is lost.
void Run(Session& session) {
    for (const Step& step : kSteps) {
        const std::string at = std::string(step.what) + ": ";
        std::string told;
        if (!Try(session, step, told)) {
            Hold(FileCalls::HasFailed(), (at + "it comes about if nothing fails, but: ").append(told));
            Hold(step.shows || !told.empty(), at + "a step that fails says so");
            Hold(Try(session, step, told), (at + "it comes about the second time, but: ").append(told));
        }
        const FileCalls::Pause pause;
        Hold(session.HasWork(), at + "the work is somewhere");
    }
    const FileCalls::Pause pause;
    Hold(NumberInFile(session.Other(), kMarker) == kMarkerOfOther, "the other file stands");
}

/// How many calls a session makes, one of which fails.
int CallsOfSession(const SessionHome& home, int failing) {
    home.PutBack();
    Session session(home);
    FileCalls::Watch({(home / "").string(), session.folder().string()}, failing);
    Run(session);
    // What the clock brings about, a flush, may be lacking: then a session makes fewer calls than another.
    const int count = FileCalls::Count();
    Hold(failing == FileCalls::kNone || FileCalls::HasFailed() || failing >= count, "the call was made");
    FileCalls::Watch({}, FileCalls::kNone);
    return count;
}

}  // namespace

std::string FailOnce(const Trial& trial) {
    const SessionHome home;
    const int calls = CallsOfSession(home, FileCalls::kNone);
    const int trials = std::min(trial.count, calls);
    std::string broken;
    for (int i = 0; i < trials; ++i) {
        const auto failing = static_cast<int>(static_cast<long>(calls) * i / trials);
        try {
            CallsOfSession(home, failing);
        } catch (const std::exception& failure) {
            broken += "call " + std::to_string(failing) + " failing, " + failure.what() + "; ";
        }
    }
    Hold(broken.empty(), broken);
    return std::to_string(trials) + " of the " + std::to_string(calls) + " calls of a session of " +
           std::to_string(kSteps.size()) + " steps";
}

}  // namespace kelvor::test
