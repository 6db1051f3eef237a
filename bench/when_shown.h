#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <utility>

namespace kelvor::bench {

/// Does something once a window is on the screen and painted, then ends the application.
class WhenShown : public QObject {
  public:
    WhenShown(QWidget& window, std::function<void()> act) : act_(std::move(act)) {
        window.windowHandle()->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::Expose || std::exchange(exposed_, true)) return false;
        // An exposed window is painted at once; this comes after it.
        QMetaObject::invokeMethod(
            this,
            [this] {
                act_();
                QCoreApplication::exit(0);  // quit() would ask the windows
            },
            Qt::QueuedConnection);
        return false;
    }

  private:
    std::function<void()> act_;
    bool exposed_ = false;
};

}  // namespace kelvor::bench
