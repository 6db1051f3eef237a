#include "desktop/start_page.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

constexpr int kLeastLetters = 30;
constexpr int kLeastLines = 5;
constexpr qsizetype kDateAndMinute = 16;  // "2004-02-29 10:00"

QString RecentText(const RecentProject& project) {
    const QString name = QFileInfo(ToQt(project.path)).completeBaseName();
    const QString missing = project.missing ? TranslatedText(", missing") : QString();
    return name + " (" + ToQt(project.date).left(kDateAndMinute) + missing + ")";
}

}  // namespace

QString SampleTitle(const std::string& path) {
    QString title = QFileInfo(ToQt(path)).completeBaseName().replace(u'_', u' ');
    for (const auto& [plain, spelt] :
         {std::pair("pcc", "PCC"), std::pair("ac of ac", "AC of AC"), std::pair("ac of", "AC of")}) {
        title.replace(QString::fromLatin1(plain), QString::fromLatin1(spelt));
    }
    return title.isEmpty() ? title : title.at(0).toUpper() + title.mid(1);
}

StartPage::StartPage(StartPageHooks hooks, QWidget* parent) : QWidget(parent), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("StartPage"));
    setMinimumWidth(kLeastLetters * fontMetrics().averageCharWidth());
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    new_ = AddButton("StartNew", TranslatedText("New Project"), TranslatedText("Begins an empty project"));
    open_ = AddButton("StartOpen", TranslatedText("Open Project..."), TranslatedText("Opens a project file"));
    recent_ = AddList("StartRecent", TranslatedText("Recent projects"),
                      TranslatedText("Enter opens the project of a line"));
    samples_ = AddList("StartSamples", TranslatedText("Samples"),
                       TranslatedText("Enter opens a copy of the sample, without a name"));
    firstDesign_ = AddButton("StartFirstDesign", TranslatedText("First Design in Five Minutes"),
                             TranslatedText("Opens the help at a first design, step by step"));
    news_ = AddButton("StartNews", TranslatedText("What Is New"),
                      TranslatedText("Opens the help at what has been added"));
    connect(new_, &QPushButton::clicked, this, [this] { hooks_.newProject(); });
    connect(open_, &QPushButton::clicked, this, [this] { hooks_.open(); });
    connect(firstDesign_, &QPushButton::clicked, this, [this] { hooks_.showHelp("FirstDesign"); });
    connect(news_, &QPushButton::clicked, this, [this] { hooks_.showHelp("WhatIsNew"); });
}

QPushButton* StartPage::AddButton(const char* name, const QString& caption, const QString& toolTip) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(toolTip);
    button->setAccessibleDescription(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

QListWidget* StartPage::AddList(const char* name, const QString& heading, const QString& toolTip) {
    auto* label = new QLabel(heading, this);
    label->setObjectName(QString::fromLatin1(name) + QStringLiteral("Label"));
    layout()->addWidget(label);
    auto* list = new QListWidget(this);
    list->setObjectName(QString::fromLatin1(name));
    list->setAccessibleName(heading);
    list->setAccessibleDescription(toolTip);
    list->setToolTip(toolTip);
    list->setTabKeyNavigation(false);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setMinimumHeight((kLeastLines + 1) * fontMetrics().lineSpacing());
    list->installEventFilter(this);
    connect(list, &QListWidget::itemDoubleClicked, this,
            [this, list](const QListWidgetItem* item) { Choose(*list, list->row(item)); });
    static_cast<QVBoxLayout*>(layout())->addWidget(list, 1);
    return list;
}

void StartPage::Choose(const QListWidget& list, int row) {
    if (row < 0 || row >= list.count()) return;
    const auto at = static_cast<std::size_t>(row);
    if (&list == recent_) {
        hooks_.openRecent(recentProjects_[at].position);
    } else {
        const std::string path = samplePaths_[at];
        hooks_.openSample(path);
    }
}

bool StartPage::eventFilter(QObject* watched, QEvent* event) {
    const auto* list = qobject_cast<const QListWidget*>(watched);
    if (list == nullptr || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    Choose(*list, list->currentRow());
    return true;
}

void StartPage::ShowRecent(std::vector<RecentProject> projects) {
    if (projects == recentProjects_) return;
    recentProjects_ = std::move(projects);
    recent_->clear();
    for (const RecentProject& project : recentProjects_) {
        auto* item = new QListWidgetItem(RecentText(project), recent_);
        item->setToolTip(ToQt(project.path));
    }
    if (recent_->count() > 0) recent_->setCurrentRow(0);
}

void StartPage::ShowSamples(const std::vector<std::string>& paths) {
    samplePaths_ = paths;
    samples_->clear();
    for (const std::string& path : samplePaths_) samples_->addItem(SampleTitle(path));
    if (samples_->count() > 0) samples_->setCurrentRow(0);
}

std::vector<QWidget*> StartPage::Stops() const {
    return {new_, open_, recent_, samples_, firstDesign_, news_};
}

}  // namespace kelvor
