#include "desktop/dialog_responder.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace kelvor::test {

namespace {

MessageStyle StyleOf(QMessageBox::StandardButtons buttons) {
    const bool cancels = buttons.testFlag(QMessageBox::Cancel);
    if (buttons.testFlag(QMessageBox::Yes)) return cancels ? MessageStyle::YesNoCancel : MessageStyle::YesNo;
    return cancels ? MessageStyle::OkCancel : MessageStyle::Ok;
}

MessageIcon IconOf(QMessageBox::Icon icon) {
    switch (icon) {
        case QMessageBox::NoIcon:
            return MessageIcon::None;
        case QMessageBox::Critical:
            return MessageIcon::Critical;
        case QMessageBox::Question:
            return MessageIcon::Question;
        case QMessageBox::Warning:
            return MessageIcon::Warning;
        case QMessageBox::Information:
            return MessageIcon::Information;
    }
    return MessageIcon::None;
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return QMessageBox::Ok;
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

Answer AnswerOf(const QMessageBox& box, const QPushButton* button) {
    for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No}) {
        if (box.button(ButtonOf(answer)) == button) return answer;
    }
    return Answer::Ok;
}

/// "Name (*.x)" as the program names it: "Name (*.x)|*.x".
std::string FilterOf(const QFileDialog& dialog) {
    QStringList fields;
    for (const QString& filter : dialog.nameFilters()) {
        const qsizetype open = filter.lastIndexOf(u'(');
        fields << filter << filter.mid(open + 1, filter.size() - open - 2);
    }
    return fields.join(u'|').toStdString();
}

}  // namespace

DialogResponder::DialogResponder(DialogObserver& observer) : observer_(observer) {
    qApp->installEventFilter(this);
}

std::optional<std::string> DialogResponder::NextAnswer() {
    if (answers_.empty()) return std::nullopt;
    std::string answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

bool DialogResponder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show) return false;
    if (auto* box = qobject_cast<QMessageBox*>(watched)) {
        const QPointer<QMessageBox> shown = box;
        QMetaObject::invokeMethod(
            this,
            [this, shown] {
                if (shown) AnswerBox(*shown);
            },
            Qt::QueuedConnection);
    } else if (auto* dialog = qobject_cast<QFileDialog*>(watched)) {
        const QPointer<QFileDialog> shown = dialog;
        QMetaObject::invokeMethod(
            this,
            [this, shown] {
                if (shown) AnswerFileDialog(*shown);
            },
            Qt::QueuedConnection);
    } else if (auto* input = qobject_cast<QInputDialog*>(watched)) {
        const QPointer<QInputDialog> shown = input;
        QMetaObject::invokeMethod(
            this,
            [this, shown] {
                if (shown) AnswerInputBox(*shown);
            },
            Qt::QueuedConnection);
    }
    return false;
}

/// With nothing queued the box is cancelled.
void DialogResponder::AnswerInputBox(QInputDialog& dialog) {
    std::optional<std::string> answer = NextAnswer();
    if (answer == NameOf(Answer::Cancel)) answer.reset();
    observer_.OnInput({dialog.labelText().toStdString(), dialog.windowTitle().toStdString()}, answer);
    auto* box = dialog.findChild<QLineEdit*>();
    if (!answer || box == nullptr) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return;
    }
    box->setText(QString::fromStdString(*answer));
    QTest::keyClick(box, Qt::Key_Return);
}

void DialogResponder::AnswerBox(QMessageBox& box) {
    if (auto* dialog = qobject_cast<QFileDialog*>(box.parentWidget())) {
        AnswerBoxOfFileDialog(box, *dialog);
        return;
    }
    if (whileDialogIsUp) std::exchange(whileDialogIsUp, nullptr)(box);
    QPushButton* button = box.defaultButton();
    if (const auto queued = NextAnswer()) {
        const auto named = AnswerNamed(*queued);
        if (named && box.button(ButtonOf(*named)) != nullptr) {
            button = qobject_cast<QPushButton*>(box.button(ButtonOf(*named)));
        }
    }
    const Message message{box.text().toStdString(), box.windowTitle().toStdString(),
                          StyleOf(box.standardButtons()), IconOf(box.icon())};
    observer_.OnMessage(message, AnswerOf(box, button));
    QTest::mouseClick(button, Qt::LeftButton);
}

/// The dialog asks whether a file shall be replaced, or says that there is none.
void DialogResponder::AnswerBoxOfFileDialog(QMessageBox& box, QFileDialog& dialog) {
    if (auto* yes = box.button(QMessageBox::Yes)) {
        QTest::mouseClick(yes, Qt::LeftButton);
        return;
    }
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection);
}

void DialogResponder::AnswerFileDialog(QFileDialog& dialog) {
    if (whileDialogIsUp) std::exchange(whileDialogIsUp, nullptr)(dialog);
    std::optional<std::string> path = silentPath_;
    if (!silentPath_) {
        path = NextAnswer();
        if (path == NameOf(Answer::Cancel) || path == "") path.reset();
        const FileRequest request{dialog.acceptMode() == QFileDialog::AcceptOpen ? FileRequest::Kind::Open
                                                                                 : FileRequest::Kind::Save,
                                  dialog.directory().absolutePath().toStdString(), FilterOf(dialog)};
        observer_.OnFile(request, path ? std::optional<Path>(*path) : std::nullopt);
    }
    silentPath_.reset();
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!path || name == nullptr) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return;
    }
    name->setText(QString::fromStdString(*path));
    QTest::keyClick(name, Qt::Key_Return);
    // A folder was opened instead of chosen.
    if (dialog.isVisible()) QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection);
}

}  // namespace kelvor::test
