#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/SettingsStore.h"
#include "platform/CodePage.h"
#include "platform/Files.h"

namespace velmora {

// The fixed names, each with the backslash that joins it to a folder.
inline constexpr const char* kYellowPagesFile = "\\DATAY.QEL";
inline constexpr const char* kWhitePagesFile = "\\DATAW.QEL";
inline constexpr const char* kPlannerDatabaseFile = "\\qel.mdb";
inline constexpr const char* kBlankDatabaseFile = "\\blank.mdb";
inline constexpr const char* kHelpFile = "\\vlm.chm";

// Turns the settings "White", "Yellow" and "Calendar" into paths, anew at each use; the program's
// own folder is the fallback. Whether a folder exists is not tested here. Where a setting can not
// be read, the folder is unknown and a Failure is thrown, so that other data than the user's is
// never opened in its stead.
class DataLocations {
  public:
    // `programFolder` has no separator at its end.
    DataLocations(std::string programFolder, const SettingsStore& settings, const Files& files,
                  const CodePage& codePage);

    // The folder of the book with this file name: "Yellow" for a name that holds "datay", "White"
    // for one that holds "dataw" (in any case; the latter wins), else the program's folder.
    [[nodiscard]] std::string BookFolder(const std::string& fileName) const;

    // BookFolder() followed by the name, trimmed as a whole.
    [[nodiscard]] std::string BookPath(const std::string& fileName) const;

    // The database in the folder "Calendar" if there is one, else that of the program's folder.
    [[nodiscard]] std::string PlannerDatabasePath() const;

    [[nodiscard]] std::string HelpFilePath() const;

    // Why one of the folders is unknown, in UTF-8; nothing when all are known.
    [[nodiscard]] std::optional<std::string> whyUnknown() const;

    [[nodiscard]] const std::string& programFolder() const { return programFolder_; }

  private:
    [[nodiscard]] std::string folderOf(const TextKey& key) const;

    std::string programFolder_;
    const SettingsStore& settings_;
    const Files& files_;
    const CodePage& codePage_;
};

}  // namespace velmora
