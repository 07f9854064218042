#pragma once

#include <string>

namespace velmora {

// Where planners lie, beside opening them, which is for AppointmentSource. Paths are code-page
// text.
class PlannerPlaces {
  public:
    virtual ~PlannerPlaces() = default;

    // Makes ready for opening what lies at `path`: a planner of an older kind is turned into one of
    // ours, and the user told; where that does not work it stays as it is, and the user is told
    // why. Never throws.
    virtual void prepare(const std::string& path) = 0;

    // Whether anything at all lies at `path`.
    [[nodiscard]] virtual bool isThere(const std::string& path) const = 0;

    // Makes `to` a copy of the planner `from`, whatever was there; that is kept as the generation
    // before. Throws Failure, and what was at `to` is then still there.
    virtual void copy(const std::string& from, const std::string& to) = 0;
};

}  // namespace velmora
