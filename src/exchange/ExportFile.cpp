#include "exchange/ExportFile.h"

#include <chrono>
#include <future>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// So that not all is still to be done at the end.
constexpr std::uint64_t kBytesPerFlush = 1 << 20;

constexpr std::chrono::milliseconds kBetweenLooks(2);

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
    if (file_->size() - begun_ < kBytesPerFlush)
        return;
    begun_ = file_->size();
    file_->beginFlush();
}

// A disk may take seconds, in which the window goes on.
void ExportFile::finish(const std::function<void()>& wait) {
    write();
    if (file_->size() == 0)
        throw Failure(why_);
    std::future<void> flushed = std::async(std::launch::async, [this] { file_->flush(); });
    while (flushed.wait_for(kBetweenLooks) != std::future_status::ready)
        wait();
    flushed.get();
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

}  // namespace velmora
