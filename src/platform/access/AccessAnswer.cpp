#include "platform/access/AccessAnswer.h"

#include <string>
#include <string_view>

#include "platform/Failure.h"

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

}  // namespace

void AccessAnswer::feed(std::string_view bytes) {
    total_ += bytes.size();
    if (total_ > kMostBytes || (ended_ && !bytes.empty()))
        throw nonsense();
    splitter_.feed(bytes);
    while (const auto message = splitter_.next()) {
        if (ended_)
            throw nonsense();
        if (message->kind == MessageKind::Error)
            throw Failure(std::string(message->text));
        if (message->kind == MessageKind::End)
            ended_ = true;
        else
            take_(*message);
    }
}

void AccessAnswer::end(bool endedWell) const {
    if (!ended_ || splitter_.hasRest() || !endedWell)
        throw Failure("The Access database is damaged and can not be read.");
}

void TableCollector::add(const Message& message) {
    if (message.kind == MessageKind::Field)
        return addField(message.text);
    if (message.kind != MessageKind::Table || tables_.size() >= kMostTables ||
        message.text.find_first_of("SU") != 0)
        throw nonsense();
    tables_.push_back({std::string(message.text.substr(1)), {}, message.text[0] == 'S'});
}

void TableCollector::addField(std::string_view text) {
    if (tables_.empty() || text.empty() || tables_.back().fields.size() >= kMostFields)
        throw nonsense();
    const auto type = typeOfLetter(text[0]);
    if (!type)
        throw nonsense();
    tables_.back().fields.push_back({std::string(text.substr(1)), *type});
}

void RowCollector::add(const Message& message) {
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

void RowCollector::finish() {
    if (!begun_)
        return;
    if (width_.value_or(row_.size()) != row_.size())
        throw nonsense();
    width_ = row_.size();
    take_(row_);
    row_.clear();
}

std::optional<std::string>& RowCollector::value() {
    if (!begun_ || row_.size() >= kMostFields)
        throw nonsense();
    return row_.emplace_back();
}

}  // namespace velmora::access
