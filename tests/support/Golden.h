#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/TestsFolder.h"

namespace velmora::test {

// Compares a text with the file tests/golden/`name`, byte by byte. A change that is meant is
// written down by running the test once with VELMORA_WRITE_GOLDEN=1; look at the difference before
// you commit it. The run that writes fails, so that none is left switched on.
inline void expectGolden(const std::string& text, const std::string& name) {
    const std::filesystem::path path = std::filesystem::path(testsFolder()) / "golden" / name;
    if (std::getenv("VELMORA_WRITE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << text;
        FAIL() << "wrote " << path;
    }
    std::ifstream file(path, std::ios::binary);
    ASSERT_TRUE(file) << path << " is missing; the text is\n" << text;
    std::ostringstream expected;
    expected << file.rdbuf();
    EXPECT_EQ(text, expected.str()) << "differs from " << path;
}

}  // namespace velmora::test
