#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace velmora::test {

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "velmora-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no temporary folder");
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::file(std::string_view name) const {
    return path_ + "/" + std::string(name);
}

void TemporaryFolder::write(std::string_view name, std::string_view bytes) const {
    std::ofstream out(file(name), std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush())
        throw std::runtime_error("can not write " + file(name));
}

std::string TemporaryFolder::read(std::string_view name) const {
    std::ifstream in(file(name), std::ios::binary);
    if (!in)
        throw std::runtime_error("can not read " + file(name));
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool TemporaryFolder::has(std::string_view name) const {
    return std::filesystem::exists(file(name));
}

}  // namespace velmora::test
