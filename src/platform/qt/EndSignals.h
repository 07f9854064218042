#pragma once

#include <QObject>
#include <functional>

namespace velmora {

// Hears the signals by which the system asks a program to end: SIGTERM, SIGHUP and SIGINT. What is
// to be done then runs from the event loop. A signal that the program's starter told it to ignore
// stays ignored. One object at a time; its destructor puts back what was set before.
class EndSignals final : public QObject {
  public:
    // Where the system has no pipe left the signals keep their usual effect.
    explicit EndSignals(std::function<void()> end);
    ~EndSignals() override;

  private:
    void heard();

    std::function<void()> end_;
    int readEnd_ = -1;
};

}  // namespace velmora
