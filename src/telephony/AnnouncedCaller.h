#pragma once

#include "platform/CodePage.h"
#include "platform/Notices.h"
#include "telephony/CallerReport.h"

namespace velmora {

// The window that lists who may be calling with a notice of the desktop beside it, for where a
// window can not come to the front by itself.
class AnnouncedCaller final : public CallerReport {
  public:
    static constexpr const char* kCall = "call";  // the subject of the notice

    // All must outlive the object.
    AnnouncedCaller(CallerReport& window, Notices& notices, const CodePage& codePage)
        : window_(window), notices_(notices), codePage_(codePage) {}

    // The window was closed: the notice goes with it.
    void closed() { notices_.withdraw(kCall); }

    void present() override { window_.present(); }
    void showNumber(const std::string& number) override;
    void clearLines() override { window_.clearLines(); }
    void addLine(const std::string& line) override { window_.addLine(line); }
    [[nodiscard]] bool hasLines() const override { return window_.hasLines(); }
    void enableList(bool enabled) override { window_.enableList(enabled); }
    void showCard(const std::string& text, bool yellow) override { window_.showCard(text, yellow); }

  private:
    CallerReport& window_;
    Notices& notices_;
    const CodePage& codePage_;
};

}  // namespace velmora
