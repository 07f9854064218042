#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// A key as it was stored, and its value.
struct Setting {
    std::string key;
    std::string value;
};

// Where settings lie: one flat list of keys and values of one user on one machine. Keys compare
// without regard to case; a value is any bytes and comes back as it was given. Two copies of the
// program may use one medium; neither loses a key of the other.
class SettingsMedium {
  public:
    virtual ~SettingsMedium() = default;

    // The stored value, or nothing at all where it is missing or can not be read.
    [[nodiscard]] virtual std::string read(std::string_view key) const = 0;

    // As read(), but throws Failure when the value can not be read: for values without which
    // something wrong would be opened.
    [[nodiscard]] virtual std::string readOrFail(std::string_view key) const = 0;

    // All settings whose key begins with `prefix`, in any case, by key; made for numbered lists of
    // thousands. Throws Failure when they can not be read, so that whoever rewrites a list never
    // takes an unreadable one for an empty one.
    [[nodiscard]] virtual std::vector<Setting> readAll(std::string_view prefix) const = 0;

    // Throws Failure when the value can not be stored; the earlier one then stands.
    virtual void save(std::string_view key, std::string_view value) = 0;

    // A missing key is no error. Throws Failure when the medium can not be written.
    virtual void remove(std::string_view key) = 0;

    // Runs `changes` so that all of them are kept or, when it throws, none. Batches may nest;
    // the outermost decides.
    virtual void batch(const std::function<void()>& changes) = 0;
};

}  // namespace velmora
