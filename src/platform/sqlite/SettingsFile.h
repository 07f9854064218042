#pragma once

#include <optional>

#include "platform/Failure.h"
#include "platform/NativePath.h"
#include "platform/sqlite/Database.h"

// The file that settings lie in: one table of keys and values, and nothing else.
namespace velmora::sqlite {

// The file is damaged, or holds something else than settings.
class NoSettings : public Failure {
  public:
    using Failure::Failure;
};

// Opens the file to be written, and makes it, for its owner only, where it is missing. Throws
// NoSettings, or Failure where it can not be written now. What it waits for locks, now and later,
// comes out of `patience`, which must outlive what is given back.
[[nodiscard]] Database openSettingsToWrite(const NativePath& path, Patience& patience);

// The settings as they are, in memory, where the file can not be written; none where there is no
// file. Throws Failure when they can not be read either.
[[nodiscard]] Database settingsAsTheyAre(const NativePath& path, Patience& patience);

// Renames a file that is no settings to a free name, which is returned, with what belongs to it.
// Throws Failure.
NativePath putSettingsAside(const NativePath& path);

}  // namespace velmora::sqlite
