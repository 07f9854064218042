#pragma once

#include <functional>

#include "core/ControlFont.h"
#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "phonebook/SelectedEntry.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "reports/EnvelopeContent.h"

namespace velmora {

// What the form `Envelope` knows: the lines of the envelope with their fonts, and the barcode. All
// changes of settings throw Failure when they can not be stored.
class EnvelopeEditor {
  public:
    // All must outlive the object.
    struct Parts {
        PrintJobs& printing;
        SettingsStore& settings;
        const SelectedEntry& entry;
        FontQuestion& fonts;
        Messages& messages;
        const CodePage& codePage;
    };

    explicit EnvelopeEditor(const Parts& parts) : parts_(parts) {}

    // The form is made: the return address and all fonts as the settings have them, no barcode. The
    // fonts of the fourth return line are those of the third.
    void load();

    // Puts the selected entry into the address, each line that is not empty into the next; without
    // one the address is empty. Throws Failure when the book can not be read.
    void FillEnvelopeFromEntry();

    [[nodiscard]] const EnvelopeContent& content() const { return content_; }
    void setText(std::size_t line, const std::string& text) { content_.lines.at(line).text = text; }

    // Asks for a ZIP code and keeps its barcode; giving up keeps the one that is there.
    void formatBarcode();

    // Keeps texts and fonts of the return address for the next start.
    void saveReturnAddress();

    // Asks for the font of a line. That of an address line is kept in the settings at once, that of
    // the return address only by saveReturnAddress(). False when the dialog was cancelled.
    bool chooseFont(std::size_t line);

    // Prints the envelope, on a sheet in landscape. Events run.
    PrintEnd print();

  private:
    Parts parts_;
    EnvelopeContent content_;
};

}  // namespace velmora
