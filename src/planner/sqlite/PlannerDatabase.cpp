#include "planner/sqlite/PlannerDatabase.h"

#include <string_view>

#include "platform/StorageFailure.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileSteps.h"
#include "platform/files/TemporaryName.h"
#include "platform/sqlite/Database.h"

namespace velmora {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPlannerSignature = "SQLite format 3\0"sv;
constexpr std::size_t kHeadSize = 32;
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
CREATE INDEX appoint_day ON appoint ("Date", "StyleSet");
CREATE INDEX appoint_tag ON appoint ("TagVariant");
)";

}  // namespace

DatabaseKind kindOfDatabase(const NativePath& path) {
    const auto head = headOf(path, kHeadSize);
    if (!head)
        return DatabaseKind::Missing;
    const std::string_view bytes = *head;
    if (bytes.starts_with(kPlannerSignature))
        return DatabaseKind::Planner;
    for (const auto signature : kAccessSignatures)
        if (bytes.size() > kAccessSignatureOffset &&
            bytes.substr(kAccessSignatureOffset).starts_with(signature))
            return DatabaseKind::Access;
    return DatabaseKind::Foreign;
}

DatabaseKind readableKindOf(const NativePath& path) {
    const DatabaseKind kind = kindOfDatabase(path);
    if (kind == DatabaseKind::Missing && identityOf(path))
        throw StorageFailure("\"" + path.utf8() + "\" can not be read.", Obstacle::Other);
    return kind;
}

void createAppointmentTable(sqlite::Database& database) {
    database.execute("PRAGMA encoding = 'UTF-8'");
    sqlite::Transaction transaction(database);
    database.execute(kTable);
    transaction.commit();
}

void layDownDatabase(const NativePath& path) {
    if (identityOf(path))
        return;
    const NativePath beside = temporaryBeside(path);
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

}  // namespace velmora
