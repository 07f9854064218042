#pragma once

#include <cstddef>
#include <string>

namespace velmora::bench {

// The letter under which a generated book has most entries.
inline constexpr char kFullestLetter = 'S';
inline constexpr int kFullestLetterTab = 18;

struct BookShape {
    std::size_t entries = 0;
    std::size_t underFullestLetter = 0;  // less than `entries`; spread over the book
};

// Writes a book of invented people and, every tenth, companies, as the program would write it.
// All names differ; the same shape gives the same bytes. The last entry is lastLine(). Throws
// std::runtime_error when the file can not be written.
void writeBook(const std::string& path, const BookShape& shape);

// The list line of the last entry of every generated book.
inline constexpr const char* kLastLine = "Zuletzt, Zoe";
inline constexpr const char* kLastName = "Zuletzt";
inline constexpr const char* kLastFirstName = "Zoe";

}  // namespace velmora::bench
