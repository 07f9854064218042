#include "platform/access/ChildAccessReader.h"

#include <optional>
#include <string_view>
#include <utility>

#include "platform/Failure.h"
#include "platform/access/AccessReaderMain.h"
#include "platform/access/AccessWire.h"
#include "platform/access/ChildProcess.h"

namespace velmora::access {

namespace {

// More than this from one file is no address book and no planner.
constexpr std::size_t kMostBytes = std::size_t{512} << 20;
constexpr std::size_t kMostTables = 10'000;
constexpr std::size_t kMostFields = 255;

Failure nonsense() {
    return Failure("The reader of Access databases answered in an unknown way.");
}

std::optional<AccessType> typeOfLetter(char letter) {
    constexpr std::string_view kLetters = "TNBDO";
    const auto place = kLetters.find(letter);
    if (place == std::string_view::npos)
        return std::nullopt;
    return static_cast<AccessType>(place);
}

// Runs the child and hands its messages on, up to the one that ends them well.
void converse(const std::vector<std::string>& arguments, std::chrono::milliseconds patience,
              const std::function<void(const Message&)>& take) {
    ChildProcess child(arguments, patience);
    MessageSplitter splitter;
    std::size_t total = 0;
    bool ended = false;
    for (std::string_view bytes = child.read(); !bytes.empty(); bytes = child.read()) {
        total += bytes.size();
        if (total > kMostBytes || ended)
            throw nonsense();
        splitter.feed(bytes);
        while (const auto message = splitter.next()) {
            if (ended)
                throw nonsense();
            if (message->kind == MessageKind::Error)
                throw Failure(std::string(message->text));
            if (message->kind == MessageKind::End)
                ended = true;
            else
                take(*message);
        }
    }
    if (!ended || splitter.hasRest() || !child.endedWell())
        throw Failure("The Access database is damaged and can not be read.");
}

void addField(std::vector<AccessTable>& tables, std::string_view text) {
    if (tables.empty() || text.empty() || tables.back().fields.size() >= kMostFields)
        throw nonsense();
    const auto type = typeOfLetter(text[0]);
    if (!type)
        throw nonsense();
    tables.back().fields.push_back({std::string(text.substr(1)), *type});
}

// Puts values together to rows, all of one length.
class RowCollector {
  public:
    explicit RowCollector(const std::function<void(const AccessRow&)>& take) : take_(take) {}

    void add(const Message& message) {
        switch (message.kind) {
            case MessageKind::Row:
                finish();
                begun_ = true;
                return;
            case MessageKind::Value:
                value().emplace(message.text);
                return;
            case MessageKind::Null:
                value().reset();
                return;
            default:
                throw nonsense();
        }
    }

    void finish() {
        if (!begun_)
            return;
        if (width_.value_or(row_.size()) != row_.size())
            throw nonsense();
        width_ = row_.size();
        take_(row_);
        row_.clear();
    }

  private:
    std::optional<std::string>& value() {
        if (!begun_ || row_.size() >= kMostFields)
            throw nonsense();
        return row_.emplace_back();
    }

    const std::function<void(const AccessRow&)>& take_;
    AccessRow row_;
    std::optional<std::size_t> width_;
    bool begun_ = false;
};

}  // namespace

ChildAccessReader::ChildAccessReader(std::string program, std::chrono::milliseconds patience)
    : program_(std::move(program)), patience_(patience) {}

std::vector<AccessTable> ChildAccessReader::tables(const NativePath& path) {
    std::vector<AccessTable> tables;
    converse({program_, kReaderArgument, path.utf8()}, patience_, [&](const Message& message) {
        if (message.kind == MessageKind::Field)
            return addField(tables, message.text);
        if (message.kind != MessageKind::Table || tables.size() >= kMostTables ||
            message.text.find_first_of("SU") != 0)
            throw nonsense();
        tables.push_back({std::string(message.text.substr(1)), {}, message.text[0] == 'S'});
    });
    return tables;
}

void ChildAccessReader::readRows(const NativePath& path, const std::string& table,
                                 const std::function<void(const AccessRow&)>& take) {
    RowCollector rows(take);
    converse({program_, kReaderArgument, path.utf8(), table}, patience_,
             [&](const Message& message) { rows.add(message); });
    rows.finish();
}

}  // namespace velmora::access
