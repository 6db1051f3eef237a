#include "desktop/help_window.h"

#include <QEvent>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/app_icon.h"
#include "desktop/qt_text.h"
#include "desktop/theme.h"
#include "desktop/translated_page.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

const char* const kPages = "qthelp://kelvor.help/help/";
const char* const kContents = "index.html";
constexpr int kColumns = 138;
constexpr int kLines = 36;
constexpr int kTabColumns = 58;

/// Links in a blue that can be read on the ground of the palette, whatever blue the palette has for them.
void ShowLinksReadable(QTextBrowser& text) {
    const QColor blue = ScreenTextColour(colours::kBlue, text.palette());
    text.document()->setDefaultStyleSheet(QStringLiteral("a { color: %1; }").arg(blue.name()));
}

/// Reads the pages out of the help file.
class HelpBrowser : public QTextBrowser {
  public:
    HelpBrowser(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {
        ShowLinksReadable(*this);
    }

    QVariant loadResource(int type, const QUrl& name) override {
        if (name.scheme() == QStringLiteral("qthelp")) return TranslatedPage(name, engine_.fileData(name));
        return QTextBrowser::loadResource(type, name);
    }

  protected:
    void changeEvent(QEvent* event) override {
        QTextBrowser::changeEvent(event);
        if (event->type() != QEvent::PaletteChange) return;
        ShowLinksReadable(*this);
        reload();
    }

  private:
    QHelpEngine& engine_;
};

}  // namespace

HelpWindow::HelpWindow()
    : engine_(folder_.filePath(QStringLiteral("help.qhc"))),
      tabs_(new QTabWidget(this)),
      text_(new HelpBrowser(engine_, this)) {
    engine_.setReadOnly(false);
    setWindowTitle(TranslatedText("Kelvor Help"));
    setWindowIcon(AppIcon());
    setAttribute(Qt::WA_QuitOnClose, false);  // the program ends with its main window
    text_->document()->setDocumentMargin(fontMetrics().lineSpacing());
    text_->setAccessibleName(TranslatedText("Page"));
    auto* sides = new QSplitter(this);
    sides->addWidget(tabs_);
    sides->addWidget(text_);
    sides->setStretchFactor(1, 1);
    setCentralWidget(sides);
    const int letter = fontMetrics().averageCharWidth();
    sides->setSizes({kTabColumns * letter, (kColumns - kTabColumns) * letter});
    resize(kColumns * letter, kLines * fontMetrics().lineSpacing());
}

/// The pages go first: they are read out of the engine as long as they are shown.
HelpWindow::~HelpWindow() { delete takeCentralWidget(); }

std::unique_ptr<HelpWindow> HelpWindow::Open(const Path& file) {
    std::unique_ptr<HelpWindow> window(new HelpWindow);
    if (!window->Load(file)) return nullptr;
    window->MakeTabs();
    return window;
}

bool HelpWindow::Load(const Path& file) {
    return folder_.isValid() && engine_.setupData() && engine_.registerDocumentation(ToQt(file.string())) &&
           engine_.setupData();
}

void HelpWindow::MakeTabs() {
    tabs_->addTab(engine_.contentWidget(), TranslatedText("&Contents"));
    MakeIndex();
    connect(engine_.contentWidget(), &QHelpContentWidget::linkActivated, text_,
            [this](const QUrl& page) { text_->setSource(page); });
    connect(engine_.contentModel(), &QHelpContentModel::contentsCreated, engine_.contentWidget(),
            [this] { engine_.contentWidget()->expandToDepth(0); });
    connect(engine_.indexWidget(), &QHelpIndexWidget::documentActivated, text_,
            [this](const QHelpLink& link) { text_->setSource(link.url); });
    MakeSearch();
    QAction* back = AddTool(TranslatedText("&Back"), QKeySequence::Back, &QTextBrowser::backward);
    QAction* forward = AddTool(TranslatedText("&Forward"), QKeySequence::Forward, &QTextBrowser::forward);
    connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(text_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    // Whoever opens the index or the search wants to type a word.
    connect(tabs_, &QTabWidget::currentChanged, this, [this] {
        if (auto* word = tabs_->currentWidget()->findChild<QLineEdit*>()) word->setFocus();
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

/// A word typed above the index leaves its entries that hold it; Enter shows the first.
void HelpWindow::MakeIndex() {
    QHelpIndexWidget* index = engine_.indexWidget();
    auto* page = new QWidget(this);
    auto* rows = new QVBoxLayout(page);
    auto* word = new QLineEdit(page);
    word->setPlaceholderText(TranslatedText("Look up"));
    word->setAccessibleName(TranslatedText("Look up in the index"));
    rows->addWidget(word);
    rows->addWidget(index, 1);
    connect(word, &QLineEdit::textEdited, index,
            [index](const QString& text) { index->filterIndices(text); });
    connect(word, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    tabs_->addTab(page, TranslatedText("&Index"));
}

void HelpWindow::MakeSearch() {
    QHelpSearchEngine* search = engine_.searchEngine();
    auto* page = new QWidget(this);
    auto* rows = new QVBoxLayout(page);
    rows->addWidget(search->queryWidget());
    rows->addWidget(search->resultWidget(), 1);
    tabs_->addTab(page, TranslatedText("&Search"));
    connect(search->queryWidget(), &QHelpSearchQueryWidget::search, this,
            [search] { search->search(search->queryWidget()->searchInput()); });
    connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, text_,
            [this](const QUrl& found) { text_->setSource(found); });
    if (auto* results = search->resultWidget()->findChild<QTextBrowser*>()) ShowLinksReadable(*results);
    search->scheduleIndexDocumentation();
}

QAction* HelpWindow::AddTool(const QString& caption, const QKeySequence& key, void (QTextBrowser::*act)()) {
    auto* bar = findChild<QToolBar*>();
    if (bar == nullptr) bar = addToolBar(TranslatedText("Pages"));
    bar->setMovable(false);
    QAction* action = bar->addAction(caption);
    action->setShortcut(key);
    action->setEnabled(false);
    connect(action, &QAction::triggered, text_, [this, act] { (text_->*act)(); });
    return action;
}

void HelpWindow::ShowPage(const std::string& name) {
    const QUrl wanted(QString::fromLatin1(kPages) + ToQt(name) + ".html");
    const bool there = !name.empty() && !engine_.fileData(wanted).isEmpty();
    text_->setSource(there ? wanted : QUrl(QString::fromLatin1(kPages) + kContents));
    show();
    raise();
    activateWindow();
}

QUrl HelpWindow::page() const { return text_->source(); }

void HelpWindow::Search(const QString& words) { engine_.searchEngine()->search(words); }

}  // namespace kelvor
