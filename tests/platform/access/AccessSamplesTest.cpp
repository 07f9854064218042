#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "platform/Failure.h"
#include "platform/access/ChildAccessReader.h"
#include "support/Soak.h"
#include "support/TemporaryFolder.h"

namespace velmora::access {
namespace {

struct Sample {
    const char* file;
    const char* table;  // of its user
    std::size_t fields;
    std::size_t rows;
};
constexpr Sample kSamples[] = {{"ASampleDatabase.accdb", "Asset Items", 13, 65},
                               {"DateTestDatabase.mdb", "DateTest", 6, 6},
                               {"node-adodb.mdb", "Users", 5, 3}};

// Real databases, damaged in all ways. Whatever is read of them, nothing hangs and nothing crashes.
class DamagedSamples : public testing::Test {
  protected:
    void SetUp() override {
        const char* samples = std::getenv("VELMORA_ACCESS_SAMPLES");
        if (!samples)
            GTEST_SKIP() << "VELMORA_ACCESS_SAMPLES names no folder";
        folder_ = samples;
    }

    [[nodiscard]] std::string bytesOf(const Sample& sample) const {
        std::string bytes;
        FILE* in = std::fopen((folder_ + "/" + sample.file).c_str(), "rb");
        if (!in)
            throw std::runtime_error(std::string("no sample ") + sample.file);
        char block[4096];
        for (std::size_t size = 0; (size = std::fread(block, 1, sizeof block, in)) > 0;)
            bytes.append(block, size);
        std::fclose(in);
        return bytes;
    }

    // How many rows could be read; -1 where it failed.
    int rowsOf(const Sample& sample, std::string_view bytes) {
        damaged_.write("damaged.mdb", bytes);
        const NativePath path(damaged_.file("damaged.mdb"));
        int rows = 0;
        try {
            (void)reader_.tables(path);
            reader_.readRows(path, sample.table, [&](const AccessRow&) { ++rows; });
        } catch (const Failure& failure) {
            EXPECT_STRNE(failure.what(), "");
            rows = -1;
        }
        EXPECT_EQ(damaged_.read("damaged.mdb"), bytes) << "it was written to";
        return rows;
    }

    std::mt19937 random_{testing::UnitTest::GetInstance()->random_seed() + 1U};

  private:
    std::string folder_;
    test::TemporaryFolder damaged_;
    ChildAccessReader reader_{"/proc/self/exe", std::chrono::seconds(3)};
};

TEST_F(DamagedSamples, WholeOnesGiveTheirTablesFieldsAndRows) {
    for (const Sample& sample : kSamples) {
        const std::string bytes = bytesOf(sample);
        EXPECT_EQ(rowsOf(sample, bytes), static_cast<int>(sample.rows)) << sample.file;
        const test::TemporaryFolder folder;
        folder.write("whole.mdb", bytes);
        ChildAccessReader reader;
        const auto tables = reader.tables(NativePath(folder.file("whole.mdb")));
        const auto found = std::find_if(tables.begin(), tables.end(), [&](const auto& table) {
            return table.name == sample.table;
        });
        ASSERT_NE(found, tables.end()) << sample.file;
        EXPECT_EQ(found->fields.size(), sample.fields);
        EXPECT_FALSE(found->isSystem);
    }
}

TEST_F(DamagedSamples, CutShortAnywhereTheyFailOrGiveWhatIsThere) {
    const int cuts = std::min(50, test::soaked(3));
    for (int cut = 0; cut < cuts; ++cut) {
        const Sample& sample = kSamples[static_cast<std::size_t>(cut) % std::size(kSamples)];
        const std::string bytes = bytesOf(sample);
        EXPECT_LE(rowsOf(sample, bytes.substr(0, random_() % bytes.size())),
                  static_cast<int>(sample.rows));
    }
}

TEST_F(DamagedSamples, WithFlippedBytesTheyFailOrGiveWhatCouldBeRead) {
    const int rounds = std::min(200, test::soaked(6));
    for (int round = 0; round < rounds; ++round) {
        const Sample& sample = kSamples[static_cast<std::size_t>(round) % std::size(kSamples)];
        std::string bytes = bytesOf(sample);
        for (int flip = 0; flip <= round; ++flip)
            bytes[random_() % bytes.size()] ^= static_cast<char>(1U << random_() % 8);
        (void)rowsOf(sample, bytes);
    }
}

TEST_F(DamagedSamples, WithScrambledPagesAsAPasswordLeavesThemTheyHaveNoRows) {
    for (const Sample& sample : kSamples) {
        std::string bytes = bytesOf(sample);
        for (std::size_t at = 4096; at < bytes.size(); ++at)
            bytes[at] = static_cast<char>(random_());
        EXPECT_LE(rowsOf(sample, bytes), 0) << sample.file;
    }
}

}  // namespace
}  // namespace velmora::access
