#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "platform/CallService.h"
#include "platform/CodePage.h"
#include "platform/EventLoop.h"
#include "platform/TelephonyLine.h"
#include "platform/WorkOwner.h"
#include "telephony/CallMerger.h"

namespace velmora {

// The telephone services of a desktop as one line. A call that several of them report is told once;
// numbers come in the form of the country, texts in the code page.
class ServiceLine final : public TelephonyLine {
  public:
    // All references, and the services, must outlive the line; `services` are asked to listen when
    // the line is activated. `country`: two letters, as nationalNumber() takes them.
    struct Parts {
        std::vector<CallService*> services;
        std::string country;
        const CodePage& codePage;
        EventLoop& loop;
        std::function<CallMerger::Time()> now;
    };
    explicit ServiceLine(Parts parts) : parts_(std::move(parts)) {}

    void activate(std::function<void(const Caller& caller)> onCall) override;

  private:
    void onReport(const CallService& service, const CallReport& report);

    Parts parts_;
    CallMerger merger_;
    std::function<void(const Caller& caller)> onCall_;
    WorkOwner calls_;  // ends them all before what they call is gone
};

}  // namespace velmora
