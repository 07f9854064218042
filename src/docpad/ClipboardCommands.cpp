#include "docpad/ClipboardCommands.h"

#include "platform/Failure.h"

namespace velmora {

void ClipboardCommands::EditCut() {
    EditCopy();
    ignoringErrors([&] { focused_.replaceSelection(""); });
}

void ClipboardCommands::EditCopy() {
    ignoringErrors([&] { clipboard_.clear(); });
    ignoringErrors([&] {
        const std::string selected = focused_.selection();
        if (!selected.empty())
            clipboard_.set(selected);
    });
}

void ClipboardCommands::EditPaste() {
    ignoringErrors([&] { focused_.replaceSelection(clipboard_.get()); });
}

}  // namespace velmora
