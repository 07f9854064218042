// generate_book FILE ENTRIES UNDER_THE_FULLEST_LETTER: writes a book for a bench.

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

#include "benches/BookGenerator.h"

int main(int argc, char** argv) try {
    if (argc != 4) {
        std::cerr << "Usage: generate_book FILE ENTRIES UNDER_THE_FULLEST_LETTER\n";
        return 2;
    }
    velmora::bench::writeBook(
        argv[1], {.entries = std::stoul(argv[2]), .underFullestLetter = std::stoul(argv[3])});
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
