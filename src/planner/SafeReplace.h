#pragma once

#include <string>

// Steps on whole files that survive a power cut at any point. Paths are those of the system; all
// throw Failure.
namespace velmora {

// Hands the bytes of a file, or the entries of a file's folder, to the disk.
void flushFile(const std::string& path);
void flushFolderOf(const std::string& path);

// Copies a file's bytes to `to`, which is replaced, and flushes them.
void copyFile(const std::string& from, const std::string& to);

// Gives the file `from` the second name `to`, which must be free; where the file system has no
// links, a copy.
void keepUnderSecondName(const std::string& from, const std::string& to);

// Renames; a file `to` is replaced in one step, and the change flushed.
void renameOver(const std::string& from, const std::string& to);

// Removes a file; one that is missing is no error.
void removeIfThere(const std::string& path);

}  // namespace velmora
