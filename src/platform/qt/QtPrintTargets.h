#pragma once

#include "platform/CodePage.h"
#include "platform/PrintRecorder.h"
#include "platform/PrintTarget.h"
#include "platform/qt/PrintService.h"

namespace velmora {

// Where the next job of a print surface goes.
class QtPrintTargets final : public PrintTargets {
  public:
    // All must outlive this object.
    QtPrintTargets(const PrintRecorder& surface, PrintService& service, const CodePage& codePage)
        : surface_(surface), service_(service), codePage_(codePage) {}

    void ask(PageOrientation orientation,
             std::function<void(const std::optional<PrintTarget>&)> known) override;
    void forget() override { service_.forgetSoon(); }

  private:
    [[nodiscard]] PrintTarget target(PageOrientation orientation) const;

    const PrintRecorder& surface_;
    PrintService& service_;
    const CodePage& codePage_;
};

}  // namespace velmora
