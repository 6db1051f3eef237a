#pragma once

#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

namespace kelvor {

/// A project that was opened before.
struct RecentProject {
    int position = 0;  // on the menu of recent projects
    std::string path;
    std::string date;  // "2004-02-29 10:00:00.000"
    bool missing = false;

    bool operator==(const RecentProject& other) const = default;
};

/// What a user may choose on the start page.
struct StartPageHooks {
    std::function<void()> newProject;
    std::function<void()> open;
    std::function<void(int position)> openRecent;
    std::function<void(const std::string& path)> openSample;
    std::function<void(const std::string& page)> showHelp;
};

/// What a user begins with, beside the drawing of the start tab: a new project, one from a file, one of those
/// opened before, a sample, or what to read first.
class StartPage : public QWidget {
  public:
    StartPage(StartPageHooks hooks, QWidget* parent);

    void ShowRecent(std::vector<RecentProject> projects);
    void ShowSamples(const std::vector<std::string>& paths);

    /// Its widgets that take the focus, in reading order.
    [[nodiscard]] std::vector<QWidget*> Stops() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QPushButton* AddButton(const char* name, const QString& caption, const QString& toolTip);
    QListWidget* AddList(const char* name, const QString& heading, const QString& toolTip);
    void Choose(const QListWidget& list, int row);

    StartPageHooks hooks_;
    std::vector<RecentProject> recentProjects_;
    std::vector<std::string> samplePaths_;
    QPushButton* new_;
    QPushButton* open_;
    QListWidget* recent_;
    QListWidget* samples_;
    QPushButton* firstDesign_;
    QPushButton* news_;
};

/// The name of a sample's file as a title: "flexible_design.kvr" is "Flexible design".
QString SampleTitle(const std::string& path);

}  // namespace kelvor
