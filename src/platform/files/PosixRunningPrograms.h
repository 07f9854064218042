#pragma once

#include <string_view>

#include "platform/RunningPrograms.h"

namespace velmora {

// A mark is the process number and the moment the process began, counted from the start of the
// machine, with the identity of that start: so a number that is used again is not taken for the
// earlier process.
class PosixRunningPrograms final : public RunningPrograms {
  public:
    // True for a text that has the form of a mark, whatever run it means.
    [[nodiscard]] static bool isMark(std::string_view text);

    [[nodiscard]] std::string ownMark() const override;
    [[nodiscard]] bool runs(const std::string& mark) const override;
};

}  // namespace velmora
