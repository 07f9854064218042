#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/ControlFont.h"
#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "docpad/LetterHead.h"
#include "docpad/PadText.h"
#include "docpad/Signature.h"
#include "phonebook/NameIndex.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Clock.h"
#include "platform/Format.h"

namespace velmora {

// Prints DocPad's text as a letter to every entry of a book: each with the date, the address, the
// salutation and the user's signature, each a job of its own.
class MergePrint {
  public:
    enum class WhichBooks { Yellow, White, Both };

    // All must outlive it.
    struct Parts {
        PrintJobs& printing;
        const PhonebookStore& store;
        const SettingsStore& settings;
        const PadText& pad;
        const FontHolder& font;  // DocPad's
        Signature& signature;
        SignatureQuestion& question;
        const Clock& clock;
        const LocaleFormats& locale;
        // Ends the program with this message, as a book does that has more names than the bound.
        std::function<void(const std::string& utf8Text)> endAfter;
    };

    explicit MergePrint(Parts parts) : parts_(std::move(parts)), index_(parts_.store.codePage()) {}

    // Asks for the signature and prints, for each of the books. Cancelling the signature ends that
    // book only. Returns when all is sent or called off; nothing happens while another job runs, as
    // the status line says.
    void run(WhichBooks books);

  private:
    // What is the same in all letters of a book.
    struct Letter {
        std::string date;
        std::string body;
        std::string signature;
        ControlFont font;
        LetterStyle style;
    };

    bool mergeBook(PrintSeries& series, std::int16_t book);
    void printLetters(PrintRun& run, const std::string& bookFile, const Letter& letter);
    [[nodiscard]] bool readNames(PrintRun& run, const std::string& bookFile);
    [[nodiscard]] std::optional<PhonebookRecord> find(PrintRun& run, const std::string& bookFile,
                                                      const std::string& name);
    [[nodiscard]] bool send(PrintRun& run, const Letter& letter, const PhonebookRecord& entry,
                            const std::string& title);

    Parts parts_;
    NameIndex index_;
};

// The address of a letter: each filled line with its line end, then the salutation between blank
// lines.
[[nodiscard]] std::string addressBlock(RecordView entry, const LetterStyle& style);

}  // namespace velmora
