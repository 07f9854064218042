#include "app/DesktopLink.h"

#include <utility>

#include "core/ProductAddresses.h"
#include "platform/qt/PollPump.h"
#include "platform/qt/WindowPlace.h"

namespace velmora {
namespace {

class NoNotices final : public Notices {
  public:
    void show(const std::string&, const std::string&, const std::string&) override {}
    void withdraw(const std::string&) override {}
};

}  // namespace

DesktopLink::DesktopLink(EventLoop& loop, Wishes wishes)
    : loop_(loop),
      wishes_(std::move(wishes)),
      application_(
          bus_, desktopEntryName(),
          {.activate =
               [this](const std::string& token) { post([this, token] { wishes_.show(token); }); },
           .open =
               [this](const std::vector<std::string>& links, const std::string& token) {
                   post([this, links, token] { wishes_.open(links, token); });
               }}),
      notices_(bus_, desktopEntryName(),
               [this](const std::string& subject, const std::string& token) {
                   post([this, subject, token] { wishes_.noticeClicked(subject, token); });
               }) {}

DesktopLink::~DesktopLink() = default;

void DesktopLink::post(std::function<void()> wish) {
    loop_.post(work_, std::move(wish));
}

void DesktopLink::join() {
    pump_ = std::make_unique<PollPump>(bus_);
}

Notices& DesktopLink::notices() {
    static NoNotices none;
    if (systemPlacesWindows())
        return notices_;
    return none;
}

}  // namespace velmora
