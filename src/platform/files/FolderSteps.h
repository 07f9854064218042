#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/NativePath.h"

// Questions about folders, and making them.
namespace velmora {

// The names of the regular files in a folder, in byte order; none when it can not be read.
[[nodiscard]] std::vector<std::string> filesIn(const NativePath& folder);

// Makes a folder that only its owner may look into, where there is none. The folder above it must
// be there. Throws Failure.
void makePrivateFolder(const NativePath& folder);

// Bytes that the user may still write on the volume of a folder; 0 when it can not be told.
[[nodiscard]] std::uint64_t freeRoomAt(const NativePath& folder);

// Bytes of a file; 0 when it can not be told.
[[nodiscard]] std::uint64_t sizeOfFile(const NativePath& path);

// How this machine calls itself on its network.
[[nodiscard]] std::string nameOfMachine();

}  // namespace velmora
