#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/FileStamp.h"
#include "platform/Files.h"
#include "platform/StorageFailure.h"

namespace velmora::test {

// Files in memory; paths compare without regard to case. Writes can be made to fail, and what
// happened to open files is recorded as "lock", "unlock" and "write <offset>".
class MemoryFiles final : public Files {
  public:
    // The bytes of a file; made empty by the first look.
    std::string& operator[](const std::string& path) { return *content(path); }

    [[nodiscard]] bool has(const std::string& path) const {
        return contents_.count(key(path)) != 0;
    }

    // Makes `path` another name of the file `target`.
    void link(const std::string& path, const std::string& target) {
        contents_[key(path)] = content(target);
    }

    [[nodiscard]] FileStamp stampOf(const std::string& path) const {
        if (!has(path))
            return {};
        const std::string& bytes = *contents_.at(key(path));
        return {1, std::hash<const void*>{}(&bytes), bytes.size(),
                static_cast<std::int64_t>(std::hash<std::string>{}(bytes))};
    }

    // Writes fail once this many more have been made; below 0 none does.
    int writesUntilFailure = -1;

    // A write at this offset of an open file fails, once; of `failingFile` only, when it is named.
    std::optional<std::uint64_t> failsOnceAt;
    std::string failingFile;

    // The one file that can not be written whole, as in a folder that may only be read.
    std::string unwritable;

    // So many locks are held by another program when they are asked for.
    int locksInUse = 0;

    // Runs in the middle of each write to an open file.
    std::function<void()> whileWriting;

    // Every attempt to open or read a file throws while this is set.
    bool unreachable = false;

    // The same for files whose path begins with this; nothing for none.
    std::string unreachableFolder;

    [[nodiscard]] int openFiles() const { return *open_; }
    std::vector<std::string> takeLog() { return std::exchange(*log_, {}); }

    [[nodiscard]] bool exists(const std::string& path) const override { return has(path); }

    [[nodiscard]] std::unique_ptr<RandomFile> openOrCreate(const std::string& path) override {
        failIfUnreachable(path);
        return std::make_unique<OpenFile>(*this, content(path));
    }

    [[nodiscard]] std::optional<std::string> readWhole(const std::string& path,
                                                       std::uint64_t limit) const override {
        failIfUnreachable(path);
        if (!has(path))
            throw Failure("The file " + path + " can not be opened: No such file or directory.");
        const std::string& bytes = *contents_.at(key(path));
        if (bytes.size() > limit)
            return std::nullopt;
        return bytes;
    }

    void writeWhole(const std::string& path, std::string_view bytes) override {
        failIfUnreachable(path);
        if (path == unwritable)
            throw Failure("The file " + path + " can not be written: Permission denied.");
        failIfFull();
        *content(path) = bytes;
    }

    void writePrivately(const std::string& path, std::string_view bytes) override {
        writeWhole(path, bytes);
    }

    void append(const std::string& path, std::string_view bytes) override {
        failIfUnreachable(path);
        failIfFull();
        *content(path) += bytes;
    }

    void remove(const std::string& path) override {
        failIfUnreachable(path);
        if (contents_.erase(key(path)) == 0)
            throw Failure("The file " + path + " can not be removed: No such file or directory.");
    }

  private:
    class OpenFile final : public RandomFile {
      public:
        OpenFile(MemoryFiles& files, std::shared_ptr<std::string> content)
            : files_(files), open_(files.open_), log_(files.log_), content_(std::move(content)) {
            ++*open_;
        }
        ~OpenFile() override {
            EXPECT_FALSE(locked_) << "closed under its lock";
            --*open_;
        }

        [[nodiscard]] std::uint64_t size() const override { return content_->size(); }

        [[nodiscard]] std::size_t readAt(std::uint64_t offset,
                                         std::span<char> target) const override {
            if (offset >= content_->size())
                return 0;
            return content_->copy(target.data(), target.size(), offset);
        }

        void writeAt(std::uint64_t offset, std::span<const char> bytes) override {
            EXPECT_TRUE(locked_) << "written without the lock";
            files_.failIfFull();
            files_.failOnceAt(offset, content_);
            log_->push_back("write " + std::to_string(offset));
            if (files_.whileWriting)
                files_.whileWriting();
            content_->resize(std::max<std::size_t>(content_->size(), offset + bytes.size()));
            std::copy(bytes.begin(), bytes.end(),
                      content_->begin() + static_cast<std::ptrdiff_t>(offset));
        }

        void writePieces(std::span<const FilePiece> pieces) override {
            const std::string before = *content_;
            try {
                RandomFile::writePieces(pieces);
            } catch (const Failure&) {
                *content_ = before;
                throw;
            }
        }

        [[nodiscard]] bool lock(std::chrono::milliseconds) override {
            EXPECT_FALSE(locked_);
            files_.refuseLock();
            log_->push_back("lock");
            return locked_ = true;
        }
        void unlock() override {
            EXPECT_TRUE(locked_);
            log_->push_back("unlock");
            locked_ = false;
        }

      private:
        MemoryFiles& files_;
        std::shared_ptr<int> open_;
        std::shared_ptr<std::vector<std::string>> log_;
        std::shared_ptr<std::string> content_;
        bool locked_ = false;
    };

    static std::string key(const std::string& path) { return CodePage::western().upper(path); }

    std::shared_ptr<std::string> content(const std::string& path) {
        auto& file = contents_[key(path)];
        if (!file)
            file = std::make_shared<std::string>();
        return file;
    }

    void failIfUnreachable(const std::string& path) const {
        if (unreachable || (!unreachableFolder.empty() && path.starts_with(unreachableFolder)))
            throw Failure("The file " + path + " can not be opened: No such file or directory.");
    }

    void failOnceAt(std::uint64_t offset, const std::shared_ptr<std::string>& file) {
        const bool meant = failingFile.empty() || content(failingFile) == file;
        if (!meant || failsOnceAt != offset)
            return;
        failsOnceAt.reset();
        throw Failure("The file can not be written: Input/output error.");
    }

    void refuseLock() {
        if (locksInUse == 0)
            return;
        --locksInUse;
        throw StorageFailure("The file is in use by another copy of the program.", Obstacle::InUse);
    }

    void failIfFull() {
        if (writesUntilFailure == 0)
            throw Failure("The file can not be written: No space left on device.");
        if (writesUntilFailure > 0)
            --writesUntilFailure;
    }

    std::map<std::string, std::shared_ptr<std::string>> contents_;
    std::shared_ptr<int> open_ = std::make_shared<int>(0);
    std::shared_ptr<std::vector<std::string>> log_ = std::make_shared<std::vector<std::string>>();
};

}  // namespace velmora::test
