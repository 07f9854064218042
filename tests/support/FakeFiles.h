#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"

namespace velmora::test {

// Files in memory, by their path as it was given.
class FakeFiles final : public Files {
  public:
    std::map<std::string, std::string> contents;

    // Paths that are there although they have no contents here.
    std::set<std::string> existing;

    // Every write throws while this is set.
    bool failing = false;

    [[nodiscard]] bool exists(const std::string& path) const override {
        return contents.count(path) > 0 || existing.count(path) > 0;
    }
    [[nodiscard]] std::unique_ptr<RandomFile> openOrCreate(const std::string& path) override {
        return std::make_unique<OpenFile>(*this, contents[path]);
    }
    [[nodiscard]] std::optional<std::string> readWhole(const std::string& path,
                                                       std::uint64_t limit) const override {
        const auto found = contents.find(path);
        if (found == contents.end())
            throw Failure(path + " is not there.");
        if (found->second.size() > limit)
            return std::nullopt;
        return found->second;
    }
    void writeWhole(const std::string& path, std::string_view bytes) override {
        failIfAsked();
        contents[path] = bytes;
    }
    void append(const std::string& path, std::string_view bytes) override {
        failIfAsked();
        contents[path] += bytes;
    }
    void remove(const std::string& path) override {
        failIfAsked();
        if (contents.erase(path) == 0)
            throw Failure(path + " is not there.");
    }

  private:
    class OpenFile final : public RandomFile {
      public:
        OpenFile(const FakeFiles& files, std::string& bytes) : files_(files), bytes_(bytes) {}

        [[nodiscard]] std::uint64_t size() const override { return bytes_.size(); }
        [[nodiscard]] std::size_t readAt(std::uint64_t offset,
                                         std::span<char> target) const override {
            if (offset >= bytes_.size())
                return 0;
            const std::size_t count = std::min<std::size_t>(target.size(), bytes_.size() - offset);
            std::copy_n(bytes_.data() + offset, count, target.data());
            return count;
        }
        void writeAt(std::uint64_t offset, std::span<const char> bytes) override {
            files_.failIfAsked();
            bytes_.resize(std::max<std::size_t>(bytes_.size(), offset + bytes.size()), '\0');
            std::copy(bytes.begin(), bytes.end(), bytes_.data() + offset);
        }
        [[nodiscard]] bool lock() override { return true; }
        void unlock() override {}

      private:
        const FakeFiles& files_;
        std::string& bytes_;
    };

    void failIfAsked() const {
        if (failing)
            throw Failure("The disk is full.");
    }
};

}  // namespace velmora::test
