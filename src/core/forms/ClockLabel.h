#pragma once

#include <QLabel>

#include "core/ClockFace.h"
#include "platform/CodePage.h"

class QAction;

namespace velmora {

// The clock at the right of the toolbar, and the menu item whose tick says that it has 24 hours.
class ClockLabel final : public QLabel, public ClockFace {
    Q_OBJECT

  public:
    // `codePage` must outlive the label, and `tick` its last use.
    ClockLabel(const CodePage& codePage, QAction& tick, QWidget* parent = nullptr);

    void setTwentyFourHourTick(bool ticked) override;
    [[nodiscard]] bool twentyFourHourTick() const override;
    void setClockText(const std::string& text) override;
    [[nodiscard]] std::string clockText() const override;

  private:
    const CodePage& codePage_;
    QAction& tick_;
};

}  // namespace velmora
