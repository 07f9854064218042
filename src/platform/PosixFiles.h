#pragma once

#include "platform/CaseTwins.h"
#include "platform/Files.h"
#include "platform/NativePaths.h"

namespace velmora {

// The files of a POSIX system.
class PosixFiles final : public Files {
  public:
    // `twins`, when given, tells which files a folder may hold once only; both it and what `paths`
    // refers to must outlive this object.
    explicit PosixFiles(NativePaths paths, const CaseTwins* twins = nullptr);

    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::unique_ptr<RandomFile> openOrCreate(const std::string& path) override;
    [[nodiscard]] std::optional<std::string> readWhole(const std::string& path,
                                                       std::uint64_t limit) const override;
    void writeWhole(const std::string& path, std::string_view bytes) override;
    void append(const std::string& path, std::string_view bytes) override;
    void remove(const std::string& path) override;

    // The path of this machine, in UTF-8, for a path of the program.
    [[nodiscard]] std::string nativePath(const std::string& path) const;

  private:
    NativePaths paths_;
    const CaseTwins* twins_;
};

}  // namespace velmora
