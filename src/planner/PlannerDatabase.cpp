#include "planner/PlannerDatabase.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "planner/SafeReplace.h"
#include "platform/Failure.h"
#include "platform/sqlite/Database.h"

namespace velmora {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPlannerSignature = "SQLite format 3\0"sv;
constexpr std::size_t kAccessSignatureOffset = 4;
constexpr std::string_view kAccessSignatures[] = {"Standard Jet DB"sv, "Standard ACE DB"sv};

constexpr const char* kTable = R"(
CREATE TABLE appoint (
    "TagVariant" TEXT,
    "Date" TEXT,
    "BeginTime" TEXT,
    "EndTime" TEXT,
    "Desc" TEXT,
    "StyleSet" TEXT
);
CREATE INDEX appoint_date ON appoint ("Date");
CREATE INDEX appoint_tag ON appoint ("TagVariant");
)";

}  // namespace

DatabaseKind kindOfDatabase(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored))
        return DatabaseKind::Missing;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return DatabaseKind::Missing;
    std::array<char, 32> head{};
    file.read(head.data(), head.size());
    const std::string_view bytes(head.data(), static_cast<std::size_t>(file.gcount()));
    if (bytes.starts_with(kPlannerSignature))
        return DatabaseKind::Planner;
    for (const auto signature : kAccessSignatures)
        if (bytes.size() > kAccessSignatureOffset &&
            bytes.substr(kAccessSignatureOffset).starts_with(signature))
            return DatabaseKind::Access;
    return DatabaseKind::Foreign;
}

void createAppointmentTable(sqlite::Database& database) {
    database.execute("PRAGMA encoding = 'UTF-8'");
    sqlite::Transaction transaction(database);
    database.execute(kTable);
    transaction.commit();
}

void layDownDatabase(const std::string& path) {
    if (identityOf(path))
        return;
    const std::string beside = path + ".laying-" + std::to_string(::getpid());
    try {
        removeIfThere(beside);
        {
            sqlite::Database database(beside, sqlite::Access::ReadWriteOrCreate);
            createAppointmentTable(database);
        }
        flushFile(beside);
        if (!identityOf(path))
            keepUnderSecondName(beside, path);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside); });
        if (identityOf(path))
            return;  // another copy of the program was faster
        throw;
    }
    ignoringErrors([&] { removeIfThere(beside); });
}

std::optional<FileIdentity> identityOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace velmora
