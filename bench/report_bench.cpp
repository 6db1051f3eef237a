#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "bench_program.h"
#include "benchmarks.h"
#include "empty_pages.h"
#include "platform/executable_folder.h"
#include "reports/report_maker.h"

namespace kelvor::bench {

namespace {

using Kind = UserEvent::Kind;

constexpr int kReportsTab = 5;
constexpr std::size_t kReports = 14;
constexpr double kLargestFile = 60'000.0;  // bytes of a report as PDF

struct Category {
    const char* option;
    std::vector<const char*> boxes;
};

const std::array<Category, 4>& Categories() {
    static const std::array<Category, 4> categories = {
        Category{"rbND", {"rbNDopR", "rbNDopF"}},
        Category{"rbOV",
                 {"rbOVopBP", "rbOVopUP", "rbOVopWT", "rbOVopAFP", "rbOVopAA", "rbOVopAP", "rbOVopAAP"}},
        Category{"rbTr", {"rbTRopTrAx", "rbTRopTrVe", "rbTRopTrTr"}}, Category{"rbCost", {}}};
    return categories;
}

/// The sample that has every report.
void OpenSample(Program& program) {
    const Path sample = ExecutableFolder() / "Samples" / "every_report.kvr";
    program.Raise({Kind::OpenFile, {}, sample.string()});
    program.Raise({.kind = Kind::SwitchTab, .number = kReportsTab});
}

/// Stages and fills all reports, in a run of each category.
std::vector<Report> MakeReports(Program& program) {
    std::vector<Report> reports;
    for (const Category& category : Categories()) {
        program.Raise({Kind::Choose, category.option});
        for (const char* box : category.boxes) program.Raise({Kind::Choose, box});
        program.Raise({Kind::Press, "Command10"});
        for (const Preview& preview : program.state().reports.previews()) reports.push_back(preview.report);
        program.Raise({Kind::Press, "Close"});
    }
    if (reports.size() != kReports) throw std::runtime_error("not every report is made");
    return reports;
}

/// The sample opened in a program of its own, its reports made, and in how many pages.
struct Reported {
    Reported() : bench(home.path()), program(bench.program()), maker(bench.files()) {
        OpenSample(program);
        reports = MakeReports(program);
        for (const Report& report : reports) pages += maker.Break(report)->Count();
    }

    [[nodiscard]] std::string Pdf(const Report& report) const {
        return maker.Content(report, ReportFormat::Pdf);
    }

    TemporaryHome home;
    BenchProgram bench;
    Program& program;
    ReportMaker maker;
    std::vector<Report> reports;
    std::size_t pages = 0;
};

void Register(const std::string& name, void (*act)(const Reported& sample)) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [act](auto& state) {
                                     const Reported sample;
                                     for (auto _ : state) act(sample);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(3)
        ->ReportAggregatesOnly();
}

void Stage(const Reported& sample) { MakeReports(sample.program); }

void WritePdfs(const Reported& sample) {
    for (const Report& report : sample.reports) benchmark::DoNotOptimize(sample.Pdf(report));
}

void WriteNothing(const Reported& sample) { benchmark::DoNotOptimize(WriteEmptyPages(sample.pages)); }

}  // namespace

std::vector<Pair> RegisterReports() {
    const auto limited = [](const char* name, const char* ours, double longestSeconds) {
        return Pair{.name = name,
                    .ours = ours,
                    .reference = {},
                    .measure = Measure::Real,
                    .limit = 1.0,
                    .longestSeconds = longestSeconds};
    };
    const Pair staged = limited("all 14 reports staged and filled, beside 50 ms", "Reports/Staged", 0.050);
    const Pair pdf = limited("all 14 reports as PDF, beside 2 s", "Reports/Pdf", 2.0);
    const Pair pages{.name = "all 14 reports as PDF, beside as many empty pages",
                     .ours = "Reports/Pdf",
                     .reference = "Reports/EmptyPages",
                     .measure = Measure::Real,
                     .limit = {}};
    Register(staged.ours, Stage);
    Register(pdf.ours, WritePdfs);
    Register(pages.reference, WriteNothing);
    return {staged, pdf, pages};
}

Comparison CompareReportSizes() {
    const Reported sample;
    std::size_t largest = 0;
    for (const Report& report : sample.reports) largest = std::max(largest, sample.Pdf(report).size());
    return {"the largest of 14 reports as PDF, beside 60 kB", Quantity::Memory, static_cast<double>(largest),
            kLargestFile, 1.0};
}

}  // namespace kelvor::bench
