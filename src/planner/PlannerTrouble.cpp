#include "planner/PlannerTrouble.h"

namespace velmora {

std::string becauseOf(Obstacle obstacle) {
    switch (obstacle) {
        case Obstacle::InUse:
            return ": another program is using the planner.";
        case Obstacle::DiskFull:
            return ": the disk is full.";
        case Obstacle::ReadOnly:
            return ": the planner may not be written to.";
        case Obstacle::NotThere:
            return ": there is no planner database.";
        case Obstacle::NoSuchRow:
            return ": it is no longer in the planner.";
        case Obstacle::Other:
            break;
    }
    return ": the planner database can not be used.";
}

std::string dayCanNotBeRead(Obstacle obstacle) {
    return "This day can not be read" + becauseOf(obstacle);
}

}  // namespace velmora
