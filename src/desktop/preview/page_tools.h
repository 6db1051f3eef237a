#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>

#include "desktop/key_table.h"
#include "desktop/preview/page_browser.h"
#include "desktop/preview/search_line.h"

namespace kelvor {

/// The tools above the pages: size, page, search, page setup, saving. Every tool has a key, which works
/// wherever the focus is in the window of the pages.
class PageTools : public QWidget {
  public:
    PageTools(PageBrowser& browser, QWidget* parent);

    /// Searches anew, in pages that have changed.
    void Renew();

    [[nodiscard]] SearchLine& search() { return *search_; }

    std::function<void()> onSetup;
    std::function<void()> onSave;
    std::function<void()> onLeave;

  private:
    struct Tool {
        const char* name;  // of its widget
        const char* caption;
        const char* meaning;
        KeyAct key;
    };

    template <typename Act>
    void Add(const Tool& tool, Act act);
    void AddKey(const QKeySequence& key, const std::function<void()>& act);
    void AddKeys(KeyAct keys, const std::function<void()>& act);
    QLabel* AddLabel(const char* name, const QString& widest);
    void AddSearch();
    void AddScrollKeys();
    void Search();
    void ShowState();

    PageBrowser& browser_;
    QLabel* page_ = nullptr;
    QLabel* zoom_ = nullptr;
    QLabel* found_ = nullptr;
    SearchLine* search_ = nullptr;
    std::size_t hits_ = 0;
};

}  // namespace kelvor
