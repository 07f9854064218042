#include "phonebook/EntryResume.h"

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// Whom the entry is about, as far as it was typed: " (Lucian Adair)".
std::string nameOf(const Entry& values) {
    const std::string name = values.justCompany ? values[Field::Company]
                                                : values[Field::First] + " " + values[Field::Last];
    const std::string_view shown = trimBlanks(name);
    return shown.empty() ? std::string() : " (" + std::string(shown) + ")";
}

}  // namespace

void EntryResume::offer() {
    for (const EntryRecovery::Kept& kept : recovery_.abandoned()) {
        if (wanted(kept.draft))
            return goOnWith(kept);
        ignoringErrors([&] { recovery_.forget(kept); });
    }
}

bool EntryResume::wanted(const EntryDraft& draft) {
    return messages_.ask("Phonebook",
                         "Velmora ended while an entry was in its form" + nameOf(draft.values) +
                             ". Do you want to go on with it?",
                         Answer::Yes);
}

void EntryResume::goOnWith(const EntryRecovery::Kept& kept) {
    // The old copy goes only when the new one is there.
    ignoringErrors([&] {
        recovery_.keep(kept.draft);
        recovery_.forget(kept);
    });
    entries_.resume(kept.draft);
}

}  // namespace velmora
