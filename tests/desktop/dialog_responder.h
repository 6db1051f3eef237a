#pragma once

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QObject>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "platform/dialogs.h"

namespace kelvor::test {

/// Answers the boxes that come up on the screen, with mouse and keys, from a queue; with nothing queued the
/// default button of a box is pressed and a file dialog is cancelled. Tells an observer what each box showed.
class DialogResponder : public QObject {
  public:
    explicit DialogResponder(DialogObserver& observer);

    void QueueAnswer(std::string answer) { answers_.push_back(std::move(answer)); }

    /// The path for the next file dialog, of which the observer is not told.
    void AnswerFileDialogWith(std::string path) { silentPath_ = std::move(path); }

    /// Called while the next message box or file dialog is up, before it is answered.
    std::function<void(QDialog& dialog)> whileDialogIsUp;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AnswerBox(QMessageBox& box);
    static void AnswerBoxOfFileDialog(QMessageBox& box, QFileDialog& dialog);
    void AnswerFileDialog(QFileDialog& dialog);
    void AnswerInputBox(QInputDialog& dialog);
    std::optional<std::string> NextAnswer();

    DialogObserver& observer_;
    std::deque<std::string> answers_;
    std::optional<std::string> silentPath_;
};

}  // namespace kelvor::test
