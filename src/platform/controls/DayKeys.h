#pragma once

class QKeyEvent;

namespace velmora {

class SSDay;

// What keys do in a day view while no editor is open in it.
class DayKeys {
  public:
    explicit DayKeys(SSDay& day) : day_(day) {}

    // False for a key that means nothing here.
    [[nodiscard]] bool press(const QKeyEvent& event) const;
    void release(const QKeyEvent& event) const;

  private:
    [[nodiscard]] bool scroll(const QKeyEvent& event) const;
    [[nodiscard]] bool nudge(const QKeyEvent& event) const;
    [[nodiscard]] bool move(const QKeyEvent& event) const;
    [[nodiscard]] bool act(const QKeyEvent& event) const;

    SSDay& day_;
};

}  // namespace velmora
