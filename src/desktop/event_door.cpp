#include "desktop/event_door.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <exception>

namespace kelvor {

void EventDoor::Raise(const UserEvent& event) {
    // What an input method still holds back belongs to the field that is about to be left.
    if (!busy_ && event.kind != UserEvent::Kind::Type) QGuiApplication::inputMethod()->commit();
    Perform([&](Program& program) { program.Raise(event); });
}

void EventDoor::NoteRefusal() {
    refused_ = true;
    QMetaObject::invokeMethod(
        &context_, [this] { refused_ = false; }, Qt::QueuedConnection);
}

void EventDoor::Perform(const std::function<void(Program&)>& act) {
    if (busy_ || stopped_) return;
    busy_ = true;
    try {
        act(program_);
        afterEvent_();
    } catch (const std::exception& stop) {
        stopped_ = true;
        onStop_(stop.what());
    }
    busy_ = false;
}

}  // namespace kelvor
