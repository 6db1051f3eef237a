#include "desktop/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QUrl>

#include "desktop/print_file.h"
#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

/// The width of a question in lines, in letters.
constexpr int kQuestionLetters = 60;

/// An ordinary pointer over a box that shows while the program is busy.
class BoxPointer {
  public:
    BoxPointer() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    BoxPointer(const BoxPointer&) = delete;
    BoxPointer& operator=(const BoxPointer&) = delete;
    ~BoxPointer() { QApplication::restoreOverrideCursor(); }
};

QMessageBox::StandardButtons ButtonsOf(MessageStyle style) {
    switch (style) {
        case MessageStyle::Ok:
            return QMessageBox::Ok;
        case MessageStyle::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageStyle::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case MessageStyle::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return QMessageBox::NoIcon;
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
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

/// The answer that a button of a box gives; a box closed by its frame gives the one that changes nothing.
Answer AnswerOf(int button, MessageStyle style) {
    for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No}) {
        if (ButtonOf(answer) == button && HasAnswer(style, answer)) return answer;
    }
    if (HasAnswer(style, Answer::Cancel)) return Answer::Cancel;
    return HasAnswer(style, Answer::No) ? Answer::No : Answer::Ok;
}

/// "Name (*.x)|*.x|Name|*.*" as the toolkit writes it: "Name (*.x);;Name (*.*)".
QString QtFilter(const std::string& filter) {
    const QStringList fields = ToQt(filter).split(u'|');
    QStringList kinds;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        const QString pattern = "(" + fields[i + 1] + ")";
        kinds << (fields[i].contains(pattern) ? fields[i] : fields[i] + " " + pattern);
    }
    return kinds.join(";;");
}

/// Offers a name: the folder stays, and nothing in it is selected.
void OfferName(const FileRequest& request, QFileDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name != nullptr) name->setText(ToQt(request.suggested.string()));
}

/// The folders at the side of a dialog: those that are asked for, and the user's own.
QList<QUrl> PlacesOf(const FileRequest& request) {
    QList<QUrl> places;
    for (const Path& place : request.places) places << QUrl::fromLocalFile(ToQt(place.string()));
    return places << QUrl::fromLocalFile(QDir::homePath());
}

}  // namespace

Answer QtDialogs::ShowMessage(const Message& message) {
    const BoxPointer pointer;
    QMessageBox box(parent_);
    box.setWindowTitle(ToQt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(message.text));
    box.setIcon(IconOf(message.icon));
    box.setStandardButtons(ButtonsOf(message.style));
    box.setDefaultButton(ButtonOf(DefaultAnswer(message.style)));
    return AnswerOf(box.exec(), message.style);
}

std::optional<std::string> QtDialogs::AskText(const InputRequest& request) {
    const BoxPointer pointer;
    QInputDialog dialog(parent_);
    dialog.setWindowTitle(ToQt(request.title));
    dialog.setLabelText(ToQt(request.text));
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        label->setWordWrap(true);
        label->setMinimumWidth(kQuestionLetters * label->fontMetrics().averageCharWidth());
    }
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return FromQt(dialog.textValue());
}

std::optional<Path> QtDialogs::AskFile(const FileRequest& request) {
    const BoxPointer pointer;
    const bool opens = request.kind == FileRequest::Kind::Open;
    const QString title = opens ? TranslatedText("Open Project") : TranslatedText("Save Project As");
    const bool proposesFile = !opens && !std::filesystem::is_directory(request.folder);
    const Path folder = proposesFile ? request.folder.parent_path() : request.folder;
    QFileDialog dialog(parent_, request.title.empty() ? title : ToQt(request.title), ToQt(folder.string()),
                       QtFilter(request.filter));
    dialog.setAcceptMode(opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ToQt(request.suffix));
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (proposesFile) dialog.selectFile(ToQt(request.folder.filename().string()));
    if (!request.suggested.empty()) OfferName(request, dialog);
    if (!request.places.empty()) dialog.setSidebarUrls(PlacesOf(request));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return Path(FromQt(dialog.selectedFiles().constFirst()));
}

void QtDialogs::ShowWait(const WaitNotice& notice) {
    if (wait_ == nullptr) wait_ = std::make_unique<WaitBox>(parent_);
    wait_->Show(notice);
}

void QtDialogs::HideWait() { wait_.reset(); }

std::optional<std::string> QtDialogs::Print(const PrintRequest& request) {
    const BoxPointer pointer;
    return PrintFile(parent_, request, *printers_);
}

void QtDialogs::ShowHelp(const HelpRequest& request) {
    if (help_ == nullptr) help_ = HelpWindow::Open(request.file);
    if (help_ != nullptr) help_->ShowPage(request.page);
}

void QtDialogs::SetWaitCursor(bool on) {
    if (on == waiting_) return;
    waiting_ = on;
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

}  // namespace kelvor
