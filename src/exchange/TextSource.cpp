#include "exchange/TextSource.h"

#include <algorithm>

#include "exchange/ExportColumns.h"
#include "exchange/TextColumns.h"
#include "platform/FatalFailure.h"

namespace velmora {
namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;
constexpr std::size_t kRowsShown = 3;
constexpr std::size_t kLinesLookedAt = 100;

constexpr const char* kQuotesRemark =
    "Quotes are not interpreted: a comma inside quotes begins a new column. The same list saved "
    "tab-delimited comes in whole.";

}  // namespace

TextSource::Inspection TextSource::inspect(const std::function<bool()>& goOn) {
    const auto bytes = file_.open(file_.path);
    const auto encoding = findEncoding(*bytes, goOn);
    if (!encoding)
        return Inspection::GivenUp;
    encoding_ = *encoding;
    TextLines lines(*bytes, encoding_, codePage_);
    if (!lines.next() || lines.line().find(file_.separator) == std::string_view::npos)
        return Inspection::NotImportable;
    header_ = lines.line();
    split(lines.line());
    columns_.assign(pieces_.begin(), pieces_.end());
    readFirstRows(lines);
    return Inspection::Importable;
}

// Nothing when it was given up.
std::optional<TextEncoding> TextSource::findEncoding(const ByteSource& bytes,
                                                     const std::function<bool()>& goOn) const {
    std::string block(kBlock, '\0');
    Utf8Check check;
    for (std::uint64_t at = 0;;) {
        const std::size_t size = bytes.read(at, block);
        const std::string_view read = std::string_view(block).substr(0, size);
        if (at == 0) {
            const TextMark mark = markOf(read);
            if (mark.length > 0)
                return mark.encoding;
            if (isExportHeader(read.substr(0, read.find_first_of("\r\n"))))
                return TextEncoding::CodePageBytes;
        }
        if (size == 0 || !check.feed(read))
            return check.isUtf8() ? TextEncoding::Utf8 : TextEncoding::CodePageBytes;
        at += size;
        if (!goOn())
            return std::nullopt;
    }
}

void TextSource::split(std::string_view line) {
    if (!splitColumns(line, file_.separator, pieces_))
        throw FatalFailure("Subscript out of range");
}

// A list whose lines differ in their columns, or that holds quotes, has most likely commas inside
// quotes.
void TextSource::readFirstRows(TextLines& lines) {
    bool quoted = header_.find('"') != std::string::npos;
    bool uneven = false;
    for (std::size_t row = 1; row < kLinesLookedAt && lines.next(); ++row) {
        quoted = quoted || lines.line().find('"') != std::string_view::npos;
        const bool held = splitColumns(lines.line(), file_.separator, pieces_);
        uneven = uneven || !held || pieces_.size() != columns_.size();
        if (firstRows_.size() < kRowsShown)
            firstRows_.emplace_back(pieces_.begin(), pieces_.end());
    }
    if (file_.separator == ',' && (quoted || uneven))
        remark_ = kQuotesRemark;
}

std::string TextSource::choiceOf(std::size_t column) const {
    return std::to_string(column + 1);
}

void TextSource::readRows(const std::function<bool(const ImportRow&)>& take) {
    const auto bytes = file_.open(file_.path);
    TextLines lines(*bytes, encoding_, codePage_);
    progress_ = {0, lines.size()};
    replaced_ = 0;
    if (!lines.next() || lines.line() != header_)
        throw Failure("The file is another one than when its columns were listed.");
    ImportRow row;
    while (lines.next()) {
        progress_.done = std::min(lines.position(), progress_.all);
        split(lines.line());
        row.assign(std::max(columns_.size(), pieces_.size()), std::string_view());
        std::copy(pieces_.begin(), pieces_.end(), row.begin());
        replaced_ = lines.replaced();
        if (!take(row))
            return;
    }
    progress_.done = progress_.all;
    if (lines.position() < lines.size())
        throw Failure("The file became shorter while it was read.");
}

ImportSource::Progress TextSource::progress() const {
    return progress_;
}

}  // namespace velmora
