// generate_planner FILE ROWS: writes a planner database for a bench.

#include <exception>
#include <iostream>
#include <string>

#include "benches/AppointmentGenerator.h"

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << "Usage: generate_planner FILE ROWS\n";
        return 2;
    }
    velmora::bench::writePlanner(argv[1], std::stoul(argv[2]));
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
