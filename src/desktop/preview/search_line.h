#pragma once

#include <QLineEdit>
#include <functional>

namespace kelvor {

/// The line for searched words. Enter goes to the next place, Shift+Enter to the one before, Escape leaves;
/// none of these keys gets to the form around it.
class SearchLine : public QLineEdit {
  public:
    explicit SearchLine(QWidget* parent);

    std::function<void(int direction)> onStep;
    std::function<void()> onLeave;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kelvor
