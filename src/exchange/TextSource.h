#pragma once

#include <optional>

#include "exchange/ImportSource.h"
#include "exchange/TextDecoding.h"
#include "exchange/TextLines.h"
#include "platform/ByteSource.h"
#include "platform/CodePage.h"

namespace velmora {

// A delimited text as an import reads it: the first line names the columns, every other line is a
// row, an empty one too. Quotes are characters like any other.
//
// A text that begins with a mark of UTF-8 or UTF-16 is read so; one without a mark as UTF-8, where
// all of it is that and some of it is not ASCII; every other one, and what Velmora exported itself,
// as bytes of the code page.
class TextSource final : public ImportSource {
  public:
    struct File {
        OpenByteSource open;  // opened for each reading
        std::string path;
        char separator = '\t';
    };

    // `codePage` must outlive the source. Nothing is read yet.
    TextSource(File file, const CodePage& codePage) : file_(std::move(file)), codePage_(codePage) {}

    enum class Inspection { Importable, NotImportable, GivenUp };

    // Finds the encoding, and reads the columns and the first rows. `goOn` lets events run in
    // between; false from it gives up. Throws Failure where the file can not be read, and
    // FatalFailure where its first line has more columns than are held.
    [[nodiscard]] Inspection inspect(const std::function<bool()>& goOn);

    // The first line of the file, once it is inspected.
    [[nodiscard]] const std::string& header() const { return header_; }

    [[nodiscard]] const std::vector<std::string>& columns() const override { return columns_; }
    // Its position as a decimal number, from 1.
    [[nodiscard]] std::string choiceOf(std::size_t column) const override;
    [[nodiscard]] const std::vector<std::vector<std::string>>& firstRows() const override {
        return firstRows_;
    }
    [[nodiscard]] const std::string& remark() const override { return remark_; }

    // A row has as many values as there are columns, or more; what a line lacks is empty. Throws
    // FatalFailure at a line of more columns than are held.
    void readRows(const std::function<bool(const ImportRow&)>& take) override;
    [[nodiscard]] Progress progress() const override;
    [[nodiscard]] std::uint64_t replacedCharacters() const override { return replaced_; }

  private:
    [[nodiscard]] std::optional<TextEncoding> findEncoding(const ByteSource& bytes,
                                                           const std::function<bool()>& goOn) const;
    void split(std::string_view line);
    void readFirstRows(TextLines& lines);

    File file_;
    const CodePage& codePage_;
    TextEncoding encoding_ = TextEncoding::CodePageBytes;
    std::string header_;
    std::vector<std::string> columns_;
    std::vector<std::vector<std::string>> firstRows_;
    std::string remark_;
    std::vector<std::string_view> pieces_;  // of the line under way
    Progress progress_;
    std::uint64_t replaced_ = 0;
};

}  // namespace velmora
