#pragma once

#include <string>
#include <string_view>

namespace velmora::test {

// A folder of its own for one test, gone with it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // Without a separator at its end.
    [[nodiscard]] const std::string& path() const { return path_; }

    [[nodiscard]] std::string file(std::string_view name) const;

    void write(std::string_view name, std::string_view bytes) const;
    [[nodiscard]] std::string read(std::string_view name) const;
    [[nodiscard]] bool has(std::string_view name) const;

  private:
    std::string path_;
};

}  // namespace velmora::test
