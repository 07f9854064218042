#include "planner/AlarmSound.h"

namespace velmora {

void AlarmSound::ring() const {
    const std::string file = settings_.read(keys::AlarmSound);
    if (!file.empty() && files_.exists(file))
        sound_.play(file);
    else
        sound_.beepThreeTimes();
}

}  // namespace velmora
