#include "platform/files/OverwriteFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "platform/Failure.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {
namespace {

// All return 0, or the system's reason.

int takeRoom(const FileDescriptor& file, std::size_t from, std::size_t to) {
    if (to <= from)
        return 0;
    return posix_fallocate(file.number(), static_cast<off_t>(from), static_cast<off_t>(to - from));
}

int cutTo(const FileDescriptor& file, std::size_t size) {
    return ftruncate(file.number(), static_cast<off_t>(size)) == 0 ? 0 : errno;
}

int writeFromBegin(const FileDescriptor& file, std::string_view bytes) {
    if (lseek(file.number(), 0, SEEK_SET) != 0)
        return errno;
    return writeFully(file, bytes);
}

// `size`: what the file has.
int writeAll(const FileDescriptor& file, std::string_view bytes, std::size_t size) {
    int why = writeFromBegin(file, bytes);
    if (why == 0 && size > bytes.size())
        why = cutTo(file, bytes.size());
    return why == 0 ? flushBytes(file) : why;
}

// The best that can still be done. It may be that nothing was written yet, and nothing can be: then
// taking the room back is enough.
void putBack(const FileDescriptor& file, std::string_view old) {
    (void)writeFromBegin(file, old);
    (void)cutTo(file, old.size());
    (void)flushBytes(file);
}

}  // namespace

void overwriteFile(const NativePath& path, std::string_view bytes) {
    const auto failure = [&](int why) {
        return systemFailure("The file " + path.utf8() + " can not be written", why);
    };
    const FileDescriptor file = openFile(path, O_RDWR);
    if (!file.isOpen())
        throw failure(errno);
    requireRegularFile(file, path);
    const std::string old = readToEnd(file, path).value_or("");
    int why = takeRoom(file, old.size(), bytes.size());
    if (why != 0) {
        (void)cutTo(file, old.size());
        throw failure(why);
    }
    why = writeAll(file, bytes, std::max(old.size(), bytes.size()));
    if (why == 0)
        return;
    putBack(file, old);
    throw failure(why);
}

}  // namespace velmora
