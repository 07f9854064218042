#include "app/EntryForms.h"

#include "phonebook/forms/AddForm.h"
#include "platform/qt/BoxOwner.h"

namespace velmora {

void EntryForms::openEntryForm(EntryEditor& editor) {
    AddForm form(editor, messages_, statusLine_, codePage_, &window_);
    runOverOwner(form);
}

}  // namespace velmora
