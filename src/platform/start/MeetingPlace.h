#pragma once

#include <optional>
#include <string>

#include "platform/NativePath.h"

namespace velmora {

// Where the starts of one user for one folder meet: a socket in the user's run-time folder.
struct MeetingPlace {
    NativePath folder;
    std::string name;  // of the socket in it

    bool operator==(const MeetingPlace&) const = default;
};

// The place of those that have these settings and this program's folder, links resolved; the file
// of the settings need not be there yet. Nothing where the user has no run-time folder of his own.
[[nodiscard]] std::optional<MeetingPlace> meetingPlace(const NativePath& settingsFile,
                                                       const NativePath& programFolder);

}  // namespace velmora
