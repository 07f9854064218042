#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/EventLoop.h"
#include "platform/WorkOwner.h"
#include "platform/bus/BusApplication.h"
#include "platform/bus/BusNotices.h"
#include "platform/bus/MessageBus.h"

namespace velmora {

class PollPump;

// Velmora and the desktop on the session bus: the desktop finds it there by the name of its entry,
// and shows its notices.
class DesktopLink {
  public:
    // What the desktop's user wishes, told in a turn of the event loop of its own. `token` lets a
    // window come to the front, where it is not empty.
    struct Wishes {
        std::function<void(const std::string& token)> show;
        std::function<void(const std::vector<std::string>& links, const std::string& token)> open;
        std::function<void(const std::string& subject, const std::string& token)> noticeClicked;
    };

    // `loop` must outlive the object.
    DesktopLink(EventLoop& loop, Wishes wishes);
    ~DesktopLink();
    DesktopLink(const DesktopLink&) = delete;
    DesktopLink& operator=(const DesktopLink&) = delete;

    // Begins; the desktop hears nothing of the program before. To be called once.
    void join();

    // The notices of the desktop, where a window can not come to the front by itself; elsewhere
    // there are none.
    [[nodiscard]] Notices& notices();

  private:
    void post(std::function<void()> wish);

    EventLoop& loop_;
    Wishes wishes_;
    MessageBus bus_{MessageBus::Kind::Session};
    BusApplication application_;
    BusNotices notices_;
    WorkOwner work_;
    std::unique_ptr<PollPump> pump_;  // goes first: it calls all the others
};

}  // namespace velmora
