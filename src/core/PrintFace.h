#pragma once

#include <string>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"

namespace velmora {

// The face that lists, reports and single entries print in: what the user has chosen for the entry
// list, `kPrintFace` without a choice, since page breaks reckon with its lines.
[[nodiscard]] inline std::string listFace(const SettingsStore& settings) {
    const std::string face = settings.read(keys::ListFont.face);
    return face.empty() ? kPrintFace : face;
}

// The same of DocPad, for letters and listings.
[[nodiscard]] inline std::string docPadFace(const SettingsStore& settings) {
    const std::string face = settings.read(keys::DocFont.face);
    return face.empty() ? kPrintFace : face;
}

}  // namespace velmora
