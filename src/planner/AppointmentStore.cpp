#include "planner/AppointmentStore.h"

#include <algorithm>
#include <utility>

#include "planner/AppointmentConversion.h"
#include "planner/DayStyleCollector.h"
#include "planner/StoredText.h"
#include "platform/DateText.h"
#include "platform/Failure.h"

namespace velmora {

namespace {

using Condition = AppointmentConnection::Condition;
using VisitStyle = AppointmentConnection::VisitStyle;

// Rows fetched at a time. A walk over all rows begins with one, since most callers want no more.
constexpr std::size_t kFirstOfAll = 1;
constexpr std::size_t kBlock = 256;

constexpr std::string_view kTagCriterion = "[TagVariant] = #";

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// A date as the store gives it, all else as it is stored.
std::string shownForm(Column column, const AppointmentValue& value) {
    if (!value)
        return {};
    const auto day = column == Column::Date ? readStoredDay(*value) : std::nullopt;
    return day ? writeDate(*day) : *value;
}

}  // namespace

AppointmentStore::AppointmentStore(const CodePage& codePage, const Clock& clock,
                                   const AppointmentSource& source,
                                   std::chrono::milliseconds patience)
    : codePage_(codePage), clock_(clock), source_(source), patience_(patience) {}

void AppointmentStore::OpenDatabase(const std::string& path) {
    dropEditing();
    connection_.reset();
    knownVersion_.reset();
    path_ = path;
    mustRun_ = false;
    dropRows();
}

void AppointmentStore::SelectByDate(std::string_view dateText,
                                    std::optional<std::chrono::year> pivotYear) {
    Source source{Condition::Date, {}, {}, {}};
    if (const auto day = readDate(dateText, pivotYear.value_or(presentYear())))
        source.value = storedDay(*day);
    else
        source.trouble = "The date \"" + codePage_.toUtf8(dateText) + "\" can not be read.";
    select("select * from appoint where date = #" + std::string(dateText) + "#", std::move(source));
}

void AppointmentStore::SelectByTag(std::string_view tagText) {
    Source source{Condition::Tag, {}, {}, {}};
    if (const auto tag = readMoment(tagText, presentYear()))
        source.value = storedMoment(*tag);
    else
        source.trouble = "The moment \"" + codePage_.toUtf8(tagText) + "\" can not be read.";
    select("select * from appoint where [TagVariant] = #" + std::string(tagText) + "#",
           std::move(source));
}

void AppointmentStore::SelectAll() {
    select("Appoint", Source{Condition::All, {}, {}, {}});
}

void AppointmentStore::select(std::string recordSource, Source source) {
    dropEditing();
    recordSource_ = std::move(recordSource);
    selected_ = std::move(source);
}

void AppointmentStore::Refresh() {
    dropEditing();
    running_ = selected_;
    dropRows();
    mustRun_ = true;
}

bool AppointmentStore::Eof() {
    run();
    return position_ >= rows_.size();
}

void AppointmentStore::MoveFirst() {
    dropEditing();
    if (!fromFirst_)
        mustRun_ = true;
    run();
    position_ = 0;
    (void)current();
}

void AppointmentStore::MoveNext() {
    dropEditing();
    const std::int64_t number = current().number;
    ++position_;
    if (position_ >= rows_.size() && moreBehind_)
        fetchBehind(number, kBlock);
}

bool AppointmentStore::FindFirst(std::string_view criterion) {
    dropEditing();
    run();
    if (!criterion.starts_with(kTagCriterion) || !criterion.ends_with('#') ||
        criterion.size() <= kTagCriterion.size())
        throw Failure("The condition \"" + codePage_.toUtf8(criterion) + "\" can not be read.");
    criterion.remove_prefix(kTagCriterion.size());
    criterion.remove_suffix(1);
    const auto tag = readMoment(criterion, presentYear());
    if (!tag)
        throw Failure("The moment \"" + codePage_.toUtf8(criterion) + "\" can not be read.");
    if (!running_.trouble.empty())
        throw StorageFailure(running_.trouble, running_.obstacle.value_or(Obstacle::Other));
    std::optional<AppointmentRow> found;
    try {
        found = connection().find(running_.condition, running_.value, storedMoment(*tag));
    } catch (const Failure& failure) {
        takeNote(failure);
        throw;
    }
    if (!found)
        return false;
    toCodePage(*found);
    rows_.clear();
    rows_.push_back(std::move(*found));
    position_ = 0;
    fromFirst_ = false;
    moreBehind_ = true;
    return true;
}

void AppointmentStore::AddNew() {
    dropEditing();
    editing_ = Editing::Addition;
}

void AppointmentStore::Edit() {
    dropEditing();
    (void)current();
    editing_ = Editing::Change;
}

void AppointmentStore::dropEditing() {
    editing_ = Editing::Nothing;
    put_ = {};
}

std::string AppointmentStore::Get(Column column) {
    if (editing_ != Editing::Nothing)
        if (const auto& put = put_[static_cast<std::size_t>(column)])
            return shownForm(column, *put);
    return editing_ == Editing::Addition ? std::string() : shownForm(column, current()[column]);
}

void AppointmentStore::Put(Column column, std::string_view value) {
    if (editing_ == Editing::Nothing)
        throw Failure("No appointment is being added or changed.");
    // What reads the same is not written: a character from another code page then stays.
    auto& put = put_[static_cast<std::size_t>(column)];
    if (editing_ == Editing::Change && shownForm(column, current()[column]) == value)
        put.reset();
    else
        put = storedForm(column, value);
}

void AppointmentStore::Update() {
    switch (editing_) {
        case Editing::Nothing:
            throw Failure("No appointment is being added or changed.");
        case Editing::Addition:
            connection().add(putInUtf8());
            touch(put_[static_cast<std::size_t>(Column::Date)].value_or(std::nullopt));
            break;
        case Editing::Change:
            (void)connection();
            connection_->change(current().number, putInUtf8());
            touch(current()[Column::Date]);
            touch(put_[static_cast<std::size_t>(Column::Date)].value_or(std::nullopt));
            for (std::size_t i = 0; i < kColumnCount; ++i)
                if (put_[i])
                    current().values[i] = std::move(*put_[i]);
            break;
    }
    dropEditing();
}

void AppointmentStore::Delete() {
    dropEditing();
    run();
    (void)connection();
    const std::int64_t number = current().number;
    connection_->remove(number);
    touch(current()[Column::Date]);
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(position_));
    if (position_ >= rows_.size() && moreBehind_)
        fetchBehind(number, kBlock);
}

void AppointmentStore::Add(const Appointment& appointment) {
    AddNew();
    const AppointmentRow row = rowOf(appointment);
    std::copy(row.values.begin(), row.values.end(), put_.begin());
    Update();
}

void AppointmentStore::touch(const AppointmentValue& storedDay) {
    if (storedDay && knownVersion_)
        touched_.insert(*storedDay);
}

void AppointmentStore::expectDay(std::string_view dateText) {
    if (const auto day = readDate(dateText, presentYear()))
        touch(storedDay(*day));
}

std::vector<DayStyle> AppointmentStore::DayStyles() {
    knownVersion_.reset();
    return NewDayStyles();
}

// The version is read before the rows: what is written in between is seen the next time, again.
std::vector<DayStyle> AppointmentStore::NewDayStyles() {
    return readStyles([this](const VisitStyle& collect) {
        AppointmentConnection& table = connection();
        const std::int64_t version = table.version();
        if (knownVersion_ != version)
            table.visitStyles({}, collect);
        else
            for (const std::string& day : touched_)
                table.visitStylesOf(day, collect);
        knownVersion_ = version;
        touched_.clear();
    });
}

std::vector<DayStyle> AppointmentStore::DayStylesBetween(std::chrono::year_month_day first,
                                                         std::chrono::year_month_day last) {
    return readStyles([&](const VisitStyle& collect) {
        connection().visitStyles({storedDay(first), storedDay(last)}, collect);
    });
}

std::vector<DayStyle> AppointmentStore::readStyles(
    const std::function<void(const VisitStyle&)>& read) {
    SelectAll();
    Refresh();
    mustRun_ = false;
    DayStyleCollector collector(codePage_);
    try {
        read([&](std::string_view date, std::string_view style) { collector.add(date, style); });
    } catch (const Failure& failure) {
        takeNote(failure);
        knownVersion_.reset();
    }
    return collector.result();
}

AppointmentConnection& AppointmentStore::connection() {
    if (connection_ && !connection_->stillMeant()) {
        connection_.reset();
        knownVersion_.reset();
        dropRows();  // their numbers mean other rows in the new file
    }
    if (!connection_)
        connection_ = source_.open(path_, patience_);
    return *connection_;
}

std::chrono::year AppointmentStore::presentYear() const {
    return dateOf(clock_.now()).year();
}

void AppointmentStore::run() {
    if (!mustRun_)
        return;
    mustRun_ = false;
    dropRows();
    if (!running_.trouble.empty())
        return;
    try {
        fetchBehind(0, running_.condition == Condition::All ? kFirstOfAll : kBlock);
    } catch (const Failure& failure) {
        running_.trouble = failure.what();
    }
}

std::optional<Obstacle> AppointmentStore::obstacle() const {
    return running_.obstacle == Obstacle::NotThere ? std::nullopt : running_.obstacle;
}

void AppointmentStore::takeNote(const Failure& failure) {
    running_.obstacle = obstacleOf(failure);
}

void AppointmentStore::fetchBehind(std::int64_t number, std::size_t limit) {
    dropRows();
    try {
        moreBehind_ = connection().fetch(running_.condition, running_.value, number, limit, rows_);
    } catch (const Failure& failure) {
        dropRows();
        takeNote(failure);
        throw;
    }
    for (AppointmentRow& row : rows_)
        toCodePage(row);
    fromFirst_ = number == 0;
}

void AppointmentStore::dropRows() {
    rows_.clear();
    position_ = 0;
    moreBehind_ = fromFirst_ = false;
}

AppointmentRow& AppointmentStore::current() {
    run();
    if (position_ < rows_.size())
        return rows_[position_];
    if (running_.trouble.empty())
        throw StorageFailure("There is no current appointment.", Obstacle::NoSuchRow);
    throw StorageFailure(running_.trouble, running_.obstacle.value_or(Obstacle::Other));
}

void AppointmentStore::toCodePage(AppointmentRow& row) const {
    for (AppointmentValue& value : row.values)
        if (value && !isAscii(*value))
            value = codePage_.fromUtf8(*value);
}

AppointmentValue AppointmentStore::storedForm(Column column, std::string_view text) const {
    if (column == Column::Date) {
        const auto day = readDate(text, presentYear());
        return day ? AppointmentValue(storedDay(*day)) : std::nullopt;
    }
    if (column == Column::TagVariant) {
        const auto tag = readMoment(text, presentYear());
        if (!tag)
            throw Failure("The moment \"" + codePage_.toUtf8(text) + "\" can not be read.");
        return storedMoment(*tag);
    }
    return std::string(text);
}

AppointmentConnection::Values AppointmentStore::putInUtf8() const {
    AppointmentConnection::Values values = put_;
    for (auto& value : values)
        if (value && *value)
            value = codePage_.toUtf8(**value);
    return values;
}

}  // namespace velmora
