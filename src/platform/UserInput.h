#pragma once

namespace velmora {

// What comes from keyboard and mouse.
class UserInput {
  public:
    virtual ~UserInput() = default;

    // While one lives, the windows that are open take nothing from keyboard and mouse, and show so.
    // Those that open meanwhile do.
    class ShutOut {
      public:
        explicit ShutOut(UserInput& input) : input_(input) { input_.shutOut(); }
        ~ShutOut() { input_.letIn(); }
        ShutOut(const ShutOut&) = delete;
        ShutOut& operator=(const ShutOut&) = delete;

      private:
        UserInput& input_;
    };

  protected:
    // Called in turns.
    virtual void shutOut() = 0;
    virtual void letIn() = 0;
};

}  // namespace velmora
