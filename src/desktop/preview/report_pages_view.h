#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/preview/page_browser.h"
#include "desktop/preview/page_tools.h"
#include "reports/engine.h"

namespace kelvor {

/// What a view of report pages asks of the program.
struct ReportPagesHooks {
    std::function<PageSetup()> setup;
    std::function<void(const PageSetup&)> changeSetup;
    std::function<void(ReportFormat, const Path&)> write;  // throws FileError
    std::function<void()> giveFocusBack;
};

/// The pages of a report, with their tools; or, where there are none, the reason.
class ReportPagesView : public QWidget {
  public:
    ReportPagesView(ReportPagesHooks hooks, QWidget* parent);

    /// Shows a document, unless it does already, under its title; null: the text says why there is none.
    void Show(const std::shared_ptr<const Document>& document, const std::string& text);

    /// The title of the pages as it is told to who hears the screen; or why there are none.
    [[nodiscard]] QString shownText() const;

    [[nodiscard]] PageBrowser& browser() { return *browser_; }
    [[nodiscard]] PageTools& tools() { return *tools_; }

  private:
    void BreakIntoPages();
    void ShowReason(const QString& reason);
    void AskSetup();
    void Save();

    ReportPagesHooks hooks_;
    std::shared_ptr<const Document> document_;
    PageBrowser* browser_;
    PageTools* tools_;
    QLabel* reason_;
};

}  // namespace kelvor
