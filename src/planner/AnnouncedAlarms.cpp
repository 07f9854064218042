#include "planner/AnnouncedAlarms.h"

namespace velmora {
namespace {

// The notice of a box that holds this function up.
class NoticeOfBox {
  public:
    explicit NoticeOfBox(Notices& notices) : notices_(notices) {}
    ~NoticeOfBox() { notices_.withdraw(AnnouncedAlarms::kTask); }
    NoticeOfBox(const NoticeOfBox&) = delete;
    NoticeOfBox& operator=(const NoticeOfBox&) = delete;

  private:
    Notices& notices_;
};

}  // namespace

void AnnouncedAlarms::showAlert(const std::string& message) {
    windows_.showAlert(message);
    notices_.show(kAlert, "Velmora - Alarm", codePage_.toUtf8(message));
}

void AnnouncedAlarms::closeAlert() {
    windows_.closeAlert();
    notices_.withdraw(kAlert);
}

void AnnouncedAlarms::warnAboveAll(const std::string& title, const std::string& text) {
    const NoticeOfBox notice(notices_);
    notices_.show(kTask, codePage_.toUtf8(title), codePage_.toUtf8(text));
    windows_.warnAboveAll(title, text);
}

}  // namespace velmora
