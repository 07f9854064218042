#include "exchange/ExportFile.h"

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// All at once would be waited for too long at the end.
constexpr std::uint64_t kBytesPerFlush = 1 << 20;

}  // namespace

ExportFile::ExportFile(Replacements& replacements, const NativePath& target)
    : file_(replacements.beside(target)) {}

void ExportFile::add(std::string_view line) {
    gathered_.append(line).append(kLineEnd);
    lines_.push_back(line.size() + kLineEnd.size());
}

void ExportFile::write() {
    if (!append(gathered_)) {
        // Some of them may still find room.
        std::string_view rest = gathered_;
        for (const std::size_t size : lines_) {
            if (!append(rest.substr(0, size)))
                ++unwritten_;
            rest.remove_prefix(size);
        }
    }
    lines_.clear();
    gathered_.clear();
    flushSometimes();
}

void ExportFile::finish() {
    write();
    if (file_->size() == 0)
        throw Failure(why_);
    if (!whyNotFlushed_.empty())
        throw Failure(whyNotFlushed_);
    file_->flush();
    file_->takePlace();
}

bool ExportFile::append(std::string_view bytes) {
    try {
        file_->append(bytes);
        return true;
    } catch (const Failure& failure) {
        if (why_.empty())
            why_ = failure.what();
        return false;
    }
}

// Bytes that the disk refuses once are lost, whatever it says the next time.
void ExportFile::flushSometimes() {
    if (file_->size() - flushed_ < kBytesPerFlush)
        return;
    flushed_ = file_->size();
    try {
        file_->flush();
    } catch (const Failure& failure) {
        whyNotFlushed_ = failure.what();
    }
}

}  // namespace velmora
