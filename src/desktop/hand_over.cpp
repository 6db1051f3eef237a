#include "desktop/hand_over.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <chrono>
#include <filesystem>
#include <utility>

#include "desktop/qt_text.h"
#include "platform/file_lock.h"

namespace kelvor {

namespace {

constexpr std::chrono::seconds kPatience(3);
constexpr unsigned long kMillisecondsBetweenLooks = 20;

bool IsRunning(const Home& home) {
    try {
        return !FileLock(home.LockFile()).holds();
    } catch (const FileError&) {
        return false;  // the start itself tells why
    }
}

bool Write(const QString& file, const QByteArray& content) {
    QFile box(file);
    return box.open(QIODevice::WriteOnly | QIODevice::Truncate) && box.write(content) == content.size();
}

}  // namespace

HandOverBox::HandOverBox(const Path& file, std::function<void(const std::string& project)> open)
    : file_(ToQt(file.string())), open_(std::move(open)) {
    if (!Write(file_, {})) return;  // then a second start tells that the program runs already
    watcher_.addPath(file_);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &HandOverBox::Take);
}

HandOverBox::~HandOverBox() { QFile::remove(file_); }

void HandOverBox::Take() {
    QFile box(file_);
    if (!box.open(QIODevice::ReadOnly)) return;
    const QByteArray project = box.readAll();
    box.close();
    if (!project.endsWith('\n')) return;  // it is still being written, or was taken
    Write(file_, {});
    open_(project.chopped(1).toStdString());
}

bool HandOver(const Home& home, const std::string& project) {
    const QString file = ToQt(home.HandOverFile().string());
    if (project.empty() || !QFileInfo::exists(file) || !IsRunning(home)) return false;
    const QByteArray path = QByteArray::fromStdString(std::filesystem::absolute(project).string());
    if (!Write(file, path + '\n')) return false;
    for (const QDeadlineTimer patience(kPatience); !patience.hasExpired();) {
        if (QFileInfo(file).size() == 0) return true;
        QThread::msleep(kMillisecondsBetweenLooks);
    }
    Write(file, {});
    return false;
}

}  // namespace kelvor
