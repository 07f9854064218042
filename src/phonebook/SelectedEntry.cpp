#include "phonebook/SelectedEntry.h"

#include "phonebook/RecordState.h"

namespace velmora {

PhonebookRecord SelectedEntry::read() const {
    PhonebookRecord record;
    const OpenBook book = store_.Open(state_.BookFile);
    if (const auto number = book.FindByListLine(pane_.selectedLine()))
        (void)book.ReadAt(*number, record);
    return isTombstone(record, store_.codePage()) ? PhonebookRecord() : record;
}

}  // namespace velmora
