#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SettingsMedium.h"

namespace velmora {

// Everything that Velmora remembers outside its data files: one flat list of keys and values,
// read anew at each use. Keys compare without regard to case and may hold backslashes, which mean
// nothing. Values are code-page text.
class SettingsStore {
  public:
    explicit SettingsStore(SettingsMedium& medium) : medium_(medium) {}

    // The stored value, or the empty text. Never fails.
    [[nodiscard]] std::string Read(std::string_view key) const { return medium_.read(key); }

    // As Read(), but throws Failure when the value can not be read.
    [[nodiscard]] std::string readOrFail(std::string_view key) const {
        return medium_.readOrFail(key);
    }

    // All settings whose key begins with `prefix`, in any case, ordered by key. Throws Failure.
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const {
        return medium_.readAll(prefix);
    }

    // Replaces any earlier value. Throws Failure.
    void Save(std::string_view key, std::string_view value) { medium_.save(key, value); }

    // Errors of any kind are swallowed.
    void Delete(std::string_view key);

    // As Delete(), but throws Failure; for a batch that must be whole.
    void remove(std::string_view key) { medium_.remove(key); }

    // Runs `changes`; all of them are kept, or none if it throws.
    void batch(const std::function<void()>& changes) { medium_.batch(changes); }

    // Read() trimmed of blanks and upper-cased, the form in which switches are compared. Only
    // A to Z change, as in the switches themselves.
    [[nodiscard]] std::string readSwitch(std::string_view key) const;

  private:
    SettingsMedium& medium_;
};

}  // namespace velmora
