#include "app/EntryForms.h"

#include "phonebook/forms/AddForm.h"

namespace velmora {

void EntryForms::openEntryForm(EntryEditor& editor) {
    AddForm form(editor, messages_, statusLine_, codePage_, &window_);
    form.exec();
}

}  // namespace velmora
