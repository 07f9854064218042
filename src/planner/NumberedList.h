#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/SettingsStore.h"

namespace velmora {

// Where a numbered list lies in the settings and what tells it from the others. Entry `n`, from 1,
// has its message under prefix + n + messageSuffix and, in a list of pairs, its time under
// prefix + n + timeSuffix. The makers are in ListShapes.h.
struct NumberedListShape {
    std::string countKey;
    std::string prefix;
    std::string_view timeSuffix;     // empty: the list holds single texts
    std::string_view messageSuffix;  // may be empty
    std::int64_t mostEntries = 0;    // that a closing up can hold
};

// An entry as it is stored, untrimmed; a key that is missing reads as empty.
struct NumberedEntry {
    std::int64_t number = 0;
    std::string time;
    std::string message;

    friend bool operator==(const NumberedEntry&, const NumberedEntry&) = default;
};

// One numbered list of the settings, read anew at each call. Its count is a key of its own and not
// the number of entries: entries may be missing or blank, and keys behind the count mean nothing.
// Each change is one transaction; it throws Failure when it can not be stored, and the list is then
// as it was.
class NumberedList {
  public:
    using Matches = std::function<bool(const NumberedEntry&)>;

    NumberedList(SettingsStore& settings, NumberedListShape shape);

    // What the count key says; 0 for a count below 0, or one that is no number or can not be read.
    [[nodiscard]] std::int64_t count() const;

    // The entries from 1 to the count, in the order of their numbers, up to the highest one that is
    // stored. Missing ones among them come as empty entries, but behind `mostEntries` they are left
    // out, so that a huge count costs nothing. Throws Failure when the settings can not be read.
    [[nodiscard]] std::vector<NumberedEntry> entries() const;

    // The first of entries() that matches.
    [[nodiscard]] std::optional<NumberedEntry> find(const Matches& matches) const;

    // Raises the count and takes the new number. `time` is of use in a list of pairs only.
    void append(std::string_view time, std::string_view message);

    // Replaces the first entry that matches; where there is none, appends.
    void replaceOrAppend(const Matches& matches, std::string_view time, std::string_view message);

    // Removes the first entry that matches and closes the list up: messages that are not blank move
    // up in order, trimmed, each with its time; an entry without a message loses its place to the
    // next one, which keeps the earlier time if it has none itself. Places left over at the end
    // stay as empty entries, since the count goes down by just 1. False, and nothing changed, where
    // none matches. Reading and writing are one transaction, so what matches is what goes, whatever
    // another program does to the list. Throws FatalFailure when more than `mostEntries` are to
    // move.
    bool remove(const Matches& matches);

  private:
    struct Stored;
    struct Row;

    [[nodiscard]] Stored read() const;
    [[nodiscard]] std::vector<NumberedEntry> entriesOf(const Stored& stored) const;
    [[nodiscard]] std::optional<NumberedEntry> findIn(const Stored& stored,
                                                      const Matches& matches) const;
    [[nodiscard]] std::vector<Row> rowsWithout(std::int64_t removed, const Stored& stored) const;
    void put(std::int64_t number, std::string_view time, std::string_view message);
    void closeUp(const Stored& stored, std::int64_t removed);
    [[nodiscard]] std::string timeKey(std::int64_t number) const;
    [[nodiscard]] std::string messageKey(std::int64_t number) const;
    [[nodiscard]] bool hasTimes() const { return !shape_.timeSuffix.empty(); }

    SettingsStore& settings_;
    NumberedListShape shape_;
};

}  // namespace velmora
