#pragma once

#include <cstddef>
#include <string>

namespace velmora::bench {

// The yardstick of the scans: reads a book in blocks of 1 MiB and compares raw bytes, with nothing
// around it. All throw std::runtime_error when the file can not be read.

// How many entries belong to a letter, "A" to "Z".
[[nodiscard]] std::size_t countUnderLetter(const std::string& path, char letter);

// The number from 1 of the first person of this name, compared without regard to the case of
// A to Z; 0 for none.
[[nodiscard]] std::size_t findPerson(const std::string& path, const std::string& last,
                                     const std::string& first);

// In how many fields of all records a text stands, compared by their bytes with A to Z upper-cased.
[[nodiscard]] std::size_t countFieldsWith(const std::string& path, const std::string& upperText);

// How many entries have one of the five forms of a number of ten digits as their telephone, work,
// fax or other number, without the blanks around it.
[[nodiscard]] std::size_t countCallers(const std::string& path, const std::string& number);

}  // namespace velmora::bench
