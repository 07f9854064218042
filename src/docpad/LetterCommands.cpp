#include "docpad/LetterCommands.h"

#include "docpad/EntryText.h"
#include "docpad/LetterHead.h"
#include "platform/Failure.h"

namespace velmora {

void LetterCommands::addLetterHead(const std::string& line) {
    addOfEntry(line, [this](const PhonebookRecord& entry) {
        return letterHead(entry, readLetterStyle(parts_.settings));
    });
}

void LetterCommands::InsertEntryText(const std::string& line) {
    addOfEntry(line, [this](const PhonebookRecord& entry) {
        return entryText(entry, readEntryTextStyle(parts_.settings));
    });
}

void LetterCommands::addTask(const std::string& task) {
    add(task + "\r\n");
}

void LetterCommands::addOfEntry(const std::string& line,
                                const std::function<std::string(const PhonebookRecord&)>& textOf) {
    try {
        const OpenBook book = parts_.store.Open(parts_.state.BookFile);
        const auto number = book.FindByListLine(line);
        PhonebookRecord entry;
        if (number && book.ReadAt(*number, entry))
            add(textOf(entry));
    } catch (const Failure& failure) {
        parts_.messages.standardError(failure.what());
    }
}

void LetterCommands::add(const std::string& text) {
    parts_.pad.append(text);
    parts_.pad.select(parts_.pad.bytes().size(), 0);
}

}  // namespace velmora
