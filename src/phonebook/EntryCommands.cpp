#include "phonebook/EntryCommands.h"

#include <memory>
#include <utility>

#include "core/DataLocations.h"
#include "phonebook/ResumedEditor.h"
#include "platform/Failure.h"

namespace velmora {

void EntryCommands::newEntry() {
    parts_.state.EntryChangeMode = 0;
    NewEntryEditor editor(parts_);
    openForm(editor);
}

void EntryCommands::newEntryWith(const Entry& values) {
    parts_.state.EntryChangeMode = 0;
    NewEntryEditor editor(parts_);
    ResumedEditor begun(editor, values);
    openForm(begun);
}

void EntryCommands::changeEntry() {
    std::string line = pane_.selectedLine();
    if (line.empty()) {
        statusLine_.show("Please select an entry before editing.");
        return;
    }
    parts_.state.EntryChangeMode = 1;
    ChangeEntryEditor editor(parts_, std::move(line));
    openForm(editor);
}

void EntryCommands::resume(const EntryDraft& draft) {
    const bool white = draft.origin.bookFile == kWhitePagesFile;
    ignoringErrors([&] { parts_.view.SelectBook(white ? kWhitePages : kYellowPages); });
    parts_.state.EntryChangeMode = draft.origin.line ? 1 : 0;
    const std::unique_ptr<EntryEditor> editor =
        draft.origin.line ? std::unique_ptr<EntryEditor>(
                                std::make_unique<ChangeEntryEditor>(parts_, *draft.origin.line))
                          : std::make_unique<NewEntryEditor>(parts_);
    ResumedEditor resumed(*editor, draft.values);
    openForm(resumed);
}

void EntryCommands::deleteEntry() {
    const std::string line = pane_.selectedLine();
    const std::string book = parts_.state.BookFile;
    if (!line.empty())
        confirmThen("Are you sure that you want to delete this record?",
                    [&] { parts_.writer.remove(book, line); });
}

void EntryCommands::moveEntry() {
    const std::string line = pane_.selectedLine();
    const std::string book = parts_.state.BookFile;
    const std::string other = book == kYellowPagesFile ? kWhitePagesFile : kYellowPagesFile;
    if (!line.empty())
        confirmThen("Are you sure that you want to move this record?",
                    [&] { parts_.writer.move(book, other, line); });
}

void EntryCommands::openForm(EntryEditor& editor) {
    (void)succeeds([&] { opener_.openEntryForm(editor); });
    parts_.state.EntryChangeMode = 0;
}

// The list loads anew after a No, too.
void EntryCommands::confirmThen(const char* question, const std::function<void()>& work) {
    const bool done = succeeds([&] {
        if (parts_.messages.ask("Confirmation:", question, Answer::No))
            parts_.patiently(work);
    });
    if (done)
        (void)succeeds([&] { parts_.view.reload(); });
    else
        ignoringErrors([&] { parts_.view.reload(); });  // the user has just been told
}

bool EntryCommands::succeeds(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const Failure& failure) {
        parts_.messages.standardError(failure.what());
        return false;
    }
}

}  // namespace velmora
