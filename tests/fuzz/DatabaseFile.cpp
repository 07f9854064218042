#include "fuzz/DatabaseFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/files/FileDescriptor.h"

// In the place of the system's own.
extern "C" int fsync(int) {
    return 0;
}
extern "C" int fdatasync(int) {
    return 0;
}

namespace velmora::fuzz {

DatabaseFile::DatabaseFile(const char* name) {
    const char* temporary = std::getenv("TMPDIR");
    folder_ = std::string(temporary ? temporary : "/tmp") + "/velmora-fuzz-XXXXXX";
    require(mkdtemp(folder_.data()) != nullptr, "there is a temporary folder");
    path_ = folder_ + "/" + name;
}

DatabaseFile::~DatabaseFile() {
    for (const char* ending : {"", "-journal", "-wal", "-shm", ".damaged", ".damaged-wal"})
        (void)unlink((path_ + ending).c_str());
    (void)rmdir(folder_.c_str());
}

void DatabaseFile::lay(const std::string& sound, Input input) const {
    if (input.byte() % 2 == 0)
        return write(input.rest());
    std::string bytes = sound;
    while (!input.empty()) {
        const std::size_t place = input.upTo(static_cast<unsigned>(bytes.size() - 1));
        bytes[place] = static_cast<char>(input.byte());
    }
    write(bytes);
}

void DatabaseFile::write(std::string_view bytes) const {
    const FileDescriptor file = openOrFail(path(), O_WRONLY | O_CREAT | O_TRUNC);
    require(writeFully(file, bytes) == 0, "a file can be written");
}

std::string DatabaseFile::bytes() const {
    return readToEnd(openOrFail(path(), O_RDONLY), path()).value_or("");
}

}  // namespace velmora::fuzz
