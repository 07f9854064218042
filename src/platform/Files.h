#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmora {

// Bytes and where in a file they belong.
struct FilePiece {
    std::uint64_t offset;
    std::span<const char> bytes;
};

// A file open for reading and, where the user may, for writing. Closed by its destructor.
class RandomFile {
  public:
    virtual ~RandomFile() = default;

    // Length in bytes. Throws Failure.
    [[nodiscard]] virtual std::uint64_t size() const = 0;

    // Reads up to target.size() bytes from `offset`; fewer only at the end of the file. Returns
    // their number. Throws Failure when the medium fails.
    [[nodiscard]] virtual std::size_t readAt(std::uint64_t offset,
                                             std::span<char> target) const = 0;

    // Writes all bytes at `offset` in one write and hands them to the disk. A gap before `offset`
    // is filled with NULs. Throws Failure; a file that would have grown then has its old length.
    virtual void writeAt(std::uint64_t offset, std::span<const char> bytes) = 0;

    // Writes the pieces in their order and hands them to the disk together. They do not overlap.
    // Throws Failure; the file is then as it was, as far as its medium allows.
    virtual void writePieces(std::span<const FilePiece> pieces) {
        for (const FilePiece& piece : pieces)
            writeAt(piece.offset, piece.bytes);
    }

    // Takes the advisory lock that keeps other copies of the program from writing between a scan
    // and the write that follows. Returns false where the file system has no locks. Waits for
    // `patience`, then throws StorageFailure (Obstacle::InUse): another copy holds it.
    [[nodiscard]] virtual bool lock(std::chrono::milliseconds patience) = 0;
    virtual void unlock() = 0;
};

// The files of this machine. Paths are code-page text; "\" and "/" both separate folders, and a
// name that is not there as spelt is looked up without regard to case.
class Files {
  public:
    virtual ~Files() = default;

    // True only for a regular file that can be looked at; links are followed.
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;

    // Opens a file for reading and writing and creates it empty when it is missing; its folder is
    // never created. A file that may only be read is opened so, and its writes throw. Throws
    // Failure.
    [[nodiscard]] virtual std::unique_ptr<RandomFile> openOrCreate(const std::string& path) = 0;

    // The whole file, or nothing when it is longer than `limit` bytes. Throws Failure.
    [[nodiscard]] virtual std::optional<std::string> readWhole(const std::string& path,
                                                               std::uint64_t limit) const = 0;

    // Replaces the whole file, or makes it; the bytes are on the disk then. Permissions, owner and
    // links stay. Throws Failure, and the old file is then as it was.
    virtual void writeWhole(const std::string& path, std::string_view bytes) = 0;

    // As writeWhole(), but a file that is made anew can be read by its owner only.
    virtual void writePrivately(const std::string& path, std::string_view bytes) = 0;

    // Puts `bytes` behind the end in one write, so that lines of two copies of the program never
    // mix. A missing file is created; its folder never is. Throws Failure.
    virtual void append(const std::string& path, std::string_view bytes) = 0;

    // Removes the file itself; of a link, the link. Throws Failure.
    virtual void remove(const std::string& path) = 0;
};

}  // namespace velmora
