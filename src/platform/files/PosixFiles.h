#pragma once

#include "platform/Files.h"
#include "platform/SystemPaths.h"
#include "platform/files/CaseTwins.h"
#include "platform/files/NativePaths.h"
#include "platform/files/ReplaceFile.h"

namespace velmora {

// The files of a POSIX system.
class PosixFiles final : public Files, public SystemPaths {
  public:
    // `twins`, when given, tells which files a folder may hold once only; both it and what `paths`
    // refers to must outlive this object.
    explicit PosixFiles(NativePaths paths, const CaseTwins* twins = nullptr);

    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::unique_ptr<RandomFile> openOrCreate(const std::string& path) override;
    [[nodiscard]] std::optional<std::string> readWhole(const std::string& path,
                                                       std::uint64_t limit) const override;
    void writeWhole(const std::string& path, std::string_view bytes) override;
    void writePrivately(const std::string& path, std::string_view bytes) override;
    void append(const std::string& path, std::string_view bytes) override;
    void remove(const std::string& path) override;

    [[nodiscard]] NativePath nativePath(const std::string& path) const override;

  private:
    void replace(const std::string& path, std::string_view bytes, Audience audience) const;

    NativePaths paths_;
    const CaseTwins* twins_;
};

}  // namespace velmora
