#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <functional>
#include <string>

#include "platform/file_system.h"
#include "shell/home.h"

namespace kelvor {

/// The file by which a second start hands its project to the program that runs: the first makes it and
/// watches it, the second writes a path into it, and the first empties it when it has taken the path.
class HandOverBox : public QObject {
  public:
    HandOverBox(const Path& file, std::function<void(const std::string& project)> open);
    HandOverBox(const HandOverBox&) = delete;
    HandOverBox& operator=(const HandOverBox&) = delete;
    ~HandOverBox() override;

  private:
    void Take();

    QString file_;
    std::function<void(const std::string& project)> open_;
    QFileSystemWatcher watcher_;
};

/// True if a program that runs on the home has taken the project; false if none runs, or if it does not
/// answer.
bool HandOver(const Home& home, const std::string& project);

}  // namespace kelvor
