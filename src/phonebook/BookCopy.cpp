#include "phonebook/BookCopy.h"

#include <algorithm>
#include <functional>
#include <span>
#include <string_view>

#include "platform/Failure.h"
#include "platform/StorageFailure.h"

namespace velmora {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// Most books are read whole while the lock is held once.
constexpr std::size_t kBlock = 512 * kRecordSize;
constexpr std::size_t kMostInMemory = 64 << 20;

// A book that changes each time while it is read is given up then.
constexpr int kMostBeginnings = 20;

// A slow volume gets its bytes in smaller pieces, since each is waited for.
constexpr milliseconds kSlow(60);
constexpr milliseconds kFast(15);
constexpr std::size_t kSmallestPiece = 1 << 16;
constexpr std::size_t kLargestPiece = 4 << 20;

std::size_t hashOf(std::string_view bytes) {
    return std::hash<std::string_view>{}(bytes);
}

// Holds the lock of a book, where there are locks.
class Locked {
  public:
    explicit Locked(BookRecords& book) : book_(book), held_(book.lock()) {}
    ~Locked() {
        if (held_)
            book_.unlock();
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

  private:
    BookRecords& book_;
    bool held_;
};

}  // namespace

bool BookCopy::step() {
    if (!file_)
        begin();
    if (written_ < waiting_.size()) {
        write();
    } else if (!readAll_) {
        read();
    } else if (compared_ < pieces_.size()) {
        compare();
    } else {
        file_->takePlace();
        return false;
    }
    return true;
}

// A book that took its own place would lose what is written to it until then.
void BookCopy::begin() {
    if (replacements_.areOne(paths_.book, paths_.copy))
        throw Failure("The phonebook " + paths_.book.utf8() + " can not be copied onto itself.");
    file_ = replacements_.beside(paths_.copy, paths_.book);
}

// Half of the work is to read the copy back.
int BookCopy::recordsDone() const {
    const std::uint64_t done = file_ ? file_->size() + comparedBytes_ : 0;
    return static_cast<int>((done + kRecordSize) / 2 / kRecordSize);
}

void BookCopy::read() {
    // Opening would make one.
    if (!books_.exists(paths_.bookFile))
        throw StorageFailure("The phonebook " + paths_.book.utf8() + " is not there.",
                             Obstacle::NotThere);
    const auto book = books_.open(paths_.bookFile);
    std::optional<Locked> lock;
    try {
        lock.emplace(*book);
    } catch (const StorageFailure& failure) {
        if (failure.obstacle() != Obstacle::InUse)
            throw;
        return bearLock(failure.what());
    }
    lockedSince_.reset();
    readUnderLock(*book);
}

void BookCopy::readUnderLock(BookRecords& book) {
    if (!state_)
        state_ = book.state();
    else if (*state_ != book.state())
        return startOver();
    size_ = static_cast<std::uint64_t>(book.count()) * kRecordSize;
    waiting_.clear();
    written_ = 0;
    const auto end = steady_clock::now() + limits_.longestRead;
    do {
        const std::size_t before = waiting_.size();
        waiting_.resize(before + kBlock);
        const auto first = static_cast<RecordNumber>((read_ + before) / kRecordSize) + 1;
        const std::size_t count = book.read(first, std::span(waiting_).subspan(before));
        waiting_.resize(before + count);
        readAll_ = count < kBlock;
    } while (!readAll_ && waiting_.size() < kMostInMemory && steady_clock::now() < end);
    // Where there are no locks, somebody may have written all the same.
    if (*state_ != book.state())
        return startOver();
    read_ += waiting_.size();
}

void BookCopy::startOver() {
    if (++beginnings_ >= kMostBeginnings)
        throw StorageFailure("The phonebook " + paths_.book.utf8() +
                                 " can not be copied: it is changed all the time. Try again when "
                                 "nobody writes to it.",
                             Obstacle::InUse);
    file_->startOver();
    state_.reset();
    read_ = 0;
    readAll_ = false;
    waiting_.clear();
    written_ = 0;
    pieces_.clear();
}

void BookCopy::bearLock(const std::string& why) {
    const auto now = steady_clock::now();
    if (!lockedSince_)
        lockedSince_ = now;
    else if (now - *lockedSince_ > limits_.patience)
        throw StorageFailure(why, Obstacle::InUse);
}

void BookCopy::write() {
    const auto piece = std::string_view(waiting_).substr(written_, pieceSize_);
    const auto begin = steady_clock::now();
    file_->append(piece);
    file_->flush();
    const auto took = steady_clock::now() - begin;
    pieces_.push_back({piece.size(), hashOf(piece)});
    written_ += piece.size();
    if (took > kSlow)
        pieceSize_ = std::max(kSmallestPiece, pieceSize_ / 2);
    else if (took < kFast)
        pieceSize_ = std::min(kLargestPiece, pieceSize_ * 2);
}

void BookCopy::compare() {
    waiting_.clear();
    written_ = 0;
    const Piece& piece = pieces_[compared_];
    std::string bytes(piece.size, '\0');
    const std::size_t count = file_->readAt(comparedBytes_, bytes);
    if (count != piece.size || hashOf(bytes) != piece.hash)
        throw Failure("The copy " + paths_.copy.utf8() +
                      " does not hold what was written to it. The volume may be damaged.");
    comparedBytes_ += piece.size;
    ++compared_;
}

}  // namespace velmora
