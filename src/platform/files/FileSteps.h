#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/NativePath.h"

// Steps on whole files that survive a power cut at any point. All but the questions throw Failure.
namespace velmora {

// True for a regular file that can be looked at; links are followed.
[[nodiscard]] bool isRegularFile(const NativePath& path);

// True when anything has this name, a link without an end too.
[[nodiscard]] bool isNameTaken(const NativePath& path);

// Up to `limit` bytes from the file's begin; nothing when it can not be read or is no regular file.
[[nodiscard]] std::optional<std::string> headOf(const NativePath& path, std::size_t limit);

// True when both files can be read and hold the same bytes.
[[nodiscard]] bool sameBytes(const NativePath& a, const NativePath& b);

// Hands the bytes of a file, or the entries of a file's folder, to the disk.
void flushFile(const NativePath& path);
void flushFolderOf(const NativePath& path);

// Copies a file's bytes to `to`, which is replaced, and flushes them.
void copyFile(const NativePath& from, const NativePath& to);

// Gives the file `from` the second name `to`, which must be free; where the file system has no
// links, a copy.
void keepUnderSecondName(const NativePath& from, const NativePath& to);

// Renames; a file `to` is replaced in one step, and the change flushed.
void renameOver(const NativePath& from, const NativePath& to);

// Removes a file; one that is missing is no error.
void removeIfThere(const NativePath& path);

// Makes an empty file, for its owner only, where there is none.
void makePrivateFile(const NativePath& path);

}  // namespace velmora
