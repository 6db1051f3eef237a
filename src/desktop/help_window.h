#pragma once

#include <QHelpEngine>
#include <QMainWindow>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <memory>
#include <string>

#include "platform/dialogs.h"

namespace kelvor {

/// The window of the help file: contents, index and search beside the page that is read.
class HelpWindow : public QMainWindow {
  public:
    HelpWindow(const HelpWindow&) = delete;
    HelpWindow& operator=(const HelpWindow&) = delete;
    ~HelpWindow() override;

    /// Null if the file is none.
    static std::unique_ptr<HelpWindow> Open(const Path& file);

    /// Shows a page by its name; the contents if there is none of that name.
    void ShowPage(const std::string& name);

    /// The address of the page that is shown.
    [[nodiscard]] QUrl page() const;

    /// Finds the pages with some words, and lists them once they are found.
    void Search(const QString& words);

    [[nodiscard]] QHelpEngine& engine() { return engine_; }

  private:
    HelpWindow();

    bool Load(const Path& file);
    void MakeTabs();
    void MakeIndex();
    void MakeSearch();
    QAction* AddTool(const QString& caption, const QKeySequence& key, void (QTextBrowser::*act)());

    QTemporaryDir folder_;  // for what the toolkit keeps of a help file
    QHelpEngine engine_;
    QTabWidget* tabs_;
    QTextBrowser* text_;
};

}  // namespace kelvor
