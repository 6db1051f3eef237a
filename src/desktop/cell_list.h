#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>

namespace kelvor {

/// The list in which a cell is edited. Typing picks the item whose name begins with what was typed, blanks
/// included: only a blank that is typed first opens the list.
class CellList : public QComboBox {
  public:
    explicit CellList(QWidget* parent) : QComboBox(parent) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QString typed_;
    QElapsedTimer sinceTyped_;
};

}  // namespace kelvor
