#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "console/script/driver.h"
#include "platform/dialogs.h"

namespace kelvor {

/// Where a script's results go: one object a line, in the order in which things happen.
class Output : public DialogObserver {
  public:
    virtual void Cell(const CellReport& cell) = 0;
    virtual void Display(const DisplayReport& display) = 0;

    /// What `way`, undo or redo, took back or did again; nothing if there was nothing.
    virtual void Step(const std::string& way, const std::optional<std::string>& act) = 0;
    virtual void Solve(const std::string& screen, int term, int result) = 0;
    virtual void Property(const std::string& control, const std::string& property,
                          const PropertyValue& value) = 0;
    virtual void Controls(const std::vector<ControlReport>& controls) = 0;
    virtual void Grid(const std::vector<GridCellReport>& cells) = 0;
    virtual void Chart(const ChartData& chart) = 0;
    virtual void Previews(const std::vector<PreviewReport>& previews) = 0;
    virtual void Table(const StagedTable& table) = 0;
    virtual void Forms(const std::vector<std::string>& names) = 0;
    virtual void Overview(const std::vector<OverviewLine>& lines) = 0;
    virtual void Focus(const std::optional<std::string>& control) = 0;
};

/// One JSON object a line; numbers read back as the same double.
class JsonOutput : public Output {
  public:
    explicit JsonOutput(std::ostream& stream) : stream_(stream) {}

    void Cell(const CellReport& cell) override;
    void Display(const DisplayReport& display) override;
    void Step(const std::string& way, const std::optional<std::string>& act) override;
    void Solve(const std::string& screen, int term, int result) override;
    void Property(const std::string& control, const std::string& property,
                  const PropertyValue& value) override;
    void Controls(const std::vector<ControlReport>& controls) override;
    void Grid(const std::vector<GridCellReport>& cells) override;
    void Chart(const ChartData& chart) override;
    void Previews(const std::vector<PreviewReport>& previews) override;
    void Table(const StagedTable& table) override;
    void Forms(const std::vector<std::string>& names) override;
    void Overview(const std::vector<OverviewLine>& lines) override;
    void Focus(const std::optional<std::string>& control) override;
    void OnMessage(const Message& message, Answer answer) override;
    void OnInput(const InputRequest& request, const std::optional<std::string>& answer) override;
    void OnFile(const FileRequest& request, const std::optional<Path>& answer) override;

  private:
    std::ostream& stream_;
};

/// The same facts as lines for a reader.
class PlainOutput : public Output {
  public:
    explicit PlainOutput(std::ostream& stream) : stream_(stream) {}

    void Cell(const CellReport& cell) override;
    void Display(const DisplayReport& display) override;
    void Step(const std::string& way, const std::optional<std::string>& act) override;
    void Solve(const std::string& screen, int term, int result) override;
    void Property(const std::string& control, const std::string& property,
                  const PropertyValue& value) override;
    void Controls(const std::vector<ControlReport>& controls) override;
    void Grid(const std::vector<GridCellReport>& cells) override;
    void Chart(const ChartData& chart) override;
    void Previews(const std::vector<PreviewReport>& previews) override;
    void Table(const StagedTable& table) override;
    void Forms(const std::vector<std::string>& names) override;
    void Overview(const std::vector<OverviewLine>& lines) override;
    void Focus(const std::optional<std::string>& control) override;
    void OnMessage(const Message& message, Answer answer) override;
    void OnInput(const InputRequest& request, const std::optional<std::string>& answer) override;
    void OnFile(const FileRequest& request, const std::optional<Path>& answer) override;

  private:
    std::ostream& stream_;
};

}  // namespace kelvor
