#include "phonebook/EntryEditors.h"

#include <utility>

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

bool hasComma(const std::string& text) {
    return text.find(',') != std::string::npos;
}

std::string captionBefore(const SettingsStore& settings, const TextKey& key) {
    return settings.has(key) ? settings.read(key) + ":" : settings.read(key);
}

constexpr const char* kChangedTitle = "Changed Meanwhile";
constexpr const char* kChangedQuestion =
    "This entry has been changed by another copy of Velmora since you opened it. Do you want to "
    "overwrite those changes with yours?";

}  // namespace

CheckedEntryEditor::CheckedEntryEditor(const EntryEditorParts& parts)
    : parts_(parts), bookFile_(parts.state.BookFile) {}

std::string CheckedEntryEditor::custom1Caption() const {
    return captionBefore(parts_.settings, keys::Custom1OnForm);
}

std::string CheckedEntryEditor::custom2Caption() const {
    return captionBefore(parts_.settings, keys::Custom2OnForm);
}

EntryEditor::Outcome CheckedEntryEditor::apply(const Entry& values) {
    if (refused(values))
        return Outcome::Refused;
    const PhonebookRecord record = recordOf(values);
    if (!write(record))
        return values.justCompany ? Outcome::RefusedNamesCleared : Outcome::Refused;
    showEntry(record);
    return Outcome::Written;
}

void CheckedEntryEditor::closed() {
    parts_.state.EntryChangeMode = 0;
}

// The texts count as they were typed: a blank is one.
bool CheckedEntryEditor::refused(const Entry& values) const {
    const auto refuse = [&](const char* title, const char* text) {
        parts_.messages.warn(title, text);
        return true;
    };
    const bool company = values.justCompany;
    if (!company && (hasComma(values[Field::First]) || hasComma(values[Field::Last])))
        return refuse("No Commas",
                      "No commas (,) can be used in the first name or last name fields.");
    if (company && hasComma(values[Field::Company]))
        return refuse("No Commas",
                      "No commas (,) can be used in the company name field for entries that are "
                      "just company listings.");
    if (!company && (values[Field::First].empty() || values[Field::Last].empty()))
        return refuse(
            "Incomplete Entry",
            "You must enter a first and last name, or click the Just a Company checkbox.");
    if (company && values[Field::Company].empty())
        return refuse("Incomplete Entry",
                      "You must complete the Company name text box in order to save this record.");
    return false;
}

// The entry is written: what fails from here on must not keep the form open.
void CheckedEntryEditor::showEntry(const PhonebookRecord& record) {
    try {
        parts_.state.PendingLetter = static_cast<std::int16_t>(parts_.store.BucketOf(record));
        parts_.view.reload();
        parts_.flipCheck1();
    } catch (const Failure& failure) {
        parts_.state.PendingLetter = 0;
        parts_.messages.standardError(failure.what());
    }
}

std::string NewEntryEditor::caption() const {
    return "Add Entry";
}

std::string NewEntryEditor::applyCaption() const {
    return "&Add Entry";
}

Entry NewEntryEditor::load() {
    return {};
}

bool NewEntryEditor::write(const PhonebookRecord& record) {
    bool added = false;
    parts_.patiently([&] { added = parts_.writer.add(bookFile_, record); });
    return added;
}

ChangeEntryEditor::ChangeEntryEditor(const EntryEditorParts& parts, std::string line)
    : CheckedEntryEditor(parts), line_(std::move(line)) {}

std::string ChangeEntryEditor::caption() const {
    return "Edit Entry";
}

std::string ChangeEntryEditor::applyCaption() const {
    return "&Keep Changes";
}

Entry ChangeEntryEditor::load() {
    const OpenBook book = parts_.store.Open(bookFile_);
    PhonebookRecord record;
    loaded_.reset();
    if (const auto number = book.FindByListLine(line_)) {
        (void)book.ReadAt(*number, record);
        loaded_ = record;
    }
    isLoaded_ = true;
    return entryOf(record);
}

// A No keeps what the form was loaded with, so that the next try asks again.
bool ChangeEntryEditor::write(const PhonebookRecord& record) {
    std::optional<PhonebookRecord> seen = loaded_;
    for (;;) {
        auto result = EntryWriter::ChangeResult::Written;
        parts_.patiently([&] {
            result = parts_.writer.change(bookFile_, line_, record, isLoaded_ ? &seen : nullptr);
        });
        switch (result) {
            case EntryWriter::ChangeResult::Written:
                return true;
            case EntryWriter::ChangeResult::NameTaken:
                parts_.messages.warn("Already Exists", "This entry already exists.");
                return false;
            case EntryWriter::ChangeResult::ChangedMeanwhile:
                if (!parts_.messages.ask(kChangedTitle, kChangedQuestion, Answer::No))
                    return false;
        }
    }
}

}  // namespace velmora
