#pragma once

namespace velmora {

// Sees how a job is sent; events may run in each call. Each answers whether to go on: a job of
// which the watch once said no is not printed.
class PrintWatch {
  public:
    virtual ~PrintWatch() = default;

    // This page, counted from 1, is about to be made ready.
    [[nodiscard]] virtual bool playing(int page, int pages) = 0;

    // The job is being handed over; called some times a second.
    [[nodiscard]] virtual bool sending() = 0;

    // The queue takes no more jobs at the moment and will be tried again; as often.
    [[nodiscard]] virtual bool waitingForTheQueue() = 0;
};

}  // namespace velmora
