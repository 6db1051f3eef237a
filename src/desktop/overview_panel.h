#pragma once

#include <QKeyEvent>
#include <QLabel>
#include <QTableWidget>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "desktop/overview_text.h"

namespace kelvor {

/// The overview of the project beside the tabs of the hub: a line for each screen that holds data. Enter or a
/// double click opens the screen, Ctrl+C copies all lines.
class OverviewPanel : public QWidget {
  public:
    OverviewPanel(std::function<void(const std::string& screen)> open, QWidget* parent);

    /// Shows the lines; what is the same is not touched.
    void Show(std::vector<OverviewRow> rows);

    [[nodiscard]] const std::vector<OverviewRow>& rows() const { return rows_; }
    [[nodiscard]] QTableWidget& table() const { return *table_; }

    /// Puts all lines on the clipboard, as a table and as text.
    void Copy() const;

    /// The least width in which the lines can be read.
    [[nodiscard]] int LeastWidth() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FillRow(int row);
    void OpenRow(int row);
    void ShowMenu(const QPoint& place);
    bool HandleKey(const QKeyEvent& key);

    std::function<void(const std::string& screen)> open_;
    std::vector<OverviewRow> rows_;
    QTableWidget* table_;
    QLabel* nothing_;  // said while there are no lines
};

}  // namespace kelvor
