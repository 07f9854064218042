#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/SettingsMedium.h"

namespace velmora::test {

// Settings in memory, with batches that are undone when they throw.
class MemorySettings final : public SettingsMedium {
  public:
    [[nodiscard]] std::string read(std::string_view key) const override {
        const auto found = values.find(CodePage::western().upper(key));
        return found == values.end() ? std::string() : found->second;
    }
    [[nodiscard]] std::string readOrFail(std::string_view key) const override {
        if (unreadable)
            throw Failure("The settings can not be read.");
        return read(key);
    }
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const override {
        if (unreadable)
            throw Failure("The settings can not be read.");
        const std::string wanted = CodePage::western().upper(prefix);
        std::vector<Setting> found;
        for (auto at = values.lower_bound(wanted);
             at != values.end() && at->first.compare(0, wanted.size(), wanted) == 0; ++at)
            found.push_back({at->first, at->second});
        return found;
    }
    void save(std::string_view key, std::string_view value) override {
        failIfAsked();
        values[CodePage::western().upper(key)] = value;
    }
    void remove(std::string_view key) override {
        failIfAsked();
        values.erase(CodePage::western().upper(key));
    }
    void batch(const std::function<void()>& changes) override {
        const auto before = values;
        try {
            changes();
        } catch (...) {
            values = before;
            throw;
        }
    }

    // Upper-cased key to value.
    std::map<std::string, std::string> values;

    // Every write throws while this is set.
    bool failing = false;

    // readAll() and readOrFail() throw while this is set.
    bool unreadable = false;

  private:
    void failIfAsked() const {
        if (failing)
            throw Failure("The settings can not be written.");
    }
};

}  // namespace velmora::test
