#pragma once

#include <string>

namespace velmora {

// Tells the present run of the program from earlier ones and from other copies that run now.
class RunningPrograms {
  public:
    virtual ~RunningPrograms() = default;

    // A mark of this run, one line of plain letters; no other run on this machine has it.
    [[nodiscard]] virtual std::string ownMark() const = 0;

    // Whether the run with this mark is still under way. False for a text that is no mark.
    [[nodiscard]] virtual bool runs(const std::string& mark) const = 0;
};

}  // namespace velmora
