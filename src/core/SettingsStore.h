#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/SettingKeys.h"
#include "platform/SettingsMedium.h"

namespace velmora {

// Everything that Velmora remembers outside its data files: one flat list of keys and values,
// read anew at each use. Keys compare without regard to case and may hold backslashes, which mean
// nothing. Values are code-page text. Keys are those of core/SettingKeys.h; a name as text is for
// those that are made while the program runs.
class SettingsStore {
  public:
    explicit SettingsStore(SettingsMedium& medium) : medium_(medium) {}

    // The stored value, or the empty text. Never fails.
    [[nodiscard]] std::string Read(std::string_view key) const { return medium_.read(key); }

    // The value that a reader of the key works with. Never fails: what can not be read counts as
    // empty.
    [[nodiscard]] std::string read(const TextKey& key) const;
    [[nodiscard]] bool read(const SwitchKey& key) const;
    [[nodiscard]] int read(const NumberKey& key) const;

    // The place of the choice among those of the key; nothing for a text that is none of them.
    [[nodiscard]] std::optional<std::size_t> read(const ChoiceKey& key) const;

    // As read(), but throws Failure when the value can not be read.
    [[nodiscard]] std::string readOrFail(const TextKey& key) const;

    // Whether there is a value that is not empty.
    [[nodiscard]] bool has(const TextKey& key) const;

    // All settings whose key begins with `prefix`, in any case, ordered by key. Throws Failure.
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const {
        return medium_.readAll(prefix);
    }

    // Replaces any earlier value. Throws Failure.
    void Save(std::string_view key, std::string_view value) { medium_.save(key, value); }

    // As Save(), in the form of the key.
    void save(const TextKey& key, std::string_view value) { medium_.save(key.name, value); }
    void save(const SwitchKey& key, bool on);

    // Errors of any kind are swallowed.
    void Delete(std::string_view key);

    // As Delete(), but throws Failure; for a batch that must be whole.
    void remove(std::string_view key) { medium_.remove(key); }
    void remove(const TextKey& key) { medium_.remove(key.name); }

    // Runs `changes`; all of them are kept, or none if it throws.
    void batch(const std::function<void()>& changes) { medium_.batch(changes); }

  private:
    SettingsMedium& medium_;
};

}  // namespace velmora
