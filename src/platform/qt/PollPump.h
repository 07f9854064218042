#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <memory>

#include "platform/Polled.h"

namespace velmora {

// Drives work from the event loop: begins it in the next turn, and once more some time after it
// could not begin or has ended.
class PollPump final : public QObject {
    Q_OBJECT

  public:
    // `work` must outlive the pump.
    explicit PollPump(Polled& work,
                      std::chrono::milliseconds untilNextTry = std::chrono::minutes(1));
    ~PollPump() override;

  private:
    void begin();
    void goOn();
    void waitForMore();
    void watch(int descriptor);
    void rest();

    Polled& work_;
    std::chrono::milliseconds untilNextTry_;
    int watched_ = -1;
    std::unique_ptr<QSocketNotifier> reading_;
    std::unique_ptr<QSocketNotifier> writing_;
    QTimer due_;
    QTimer nextTry_;
};

}  // namespace velmora
