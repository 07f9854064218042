#include "reports/EnvelopeEditor.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/NumberText.h"
#include "platform/Text.h"
#include "reports/Barcode.h"
#include "reports/EnvelopePage.h"

namespace velmora {
namespace {

constexpr double kSmallestFont = 4;  // points, in the dialog
constexpr double kLargestFont = 14;
constexpr double kAddressSize = 12;  // points, as long as nobody chose one
constexpr int kWhite = 0xFFFFFF;

// Line 4 of the return address is stored under keys of its own and loaded from those of line 3.
constexpr std::size_t kLastReturnLine = 3;

const FontKey& fontKey(std::size_t line) {
    return line < kReturnLines ? keys::ReturnFonts.at(line)
                               : keys::AddressFonts.at(line - kReturnLines);
}

void readFont(const SettingsStore& settings, const FontKey& key, EnvelopeLine& line) {
    if (const std::string name = settings.read(key.face); !name.empty())
        line.fontName = name;
    if (const double size = readNumber(settings.read(key.size)); size > 0)
        line.fontSize = size;
    if (const std::string text = settings.read(key.colour); !text.empty()) {
        const int colour = readWhole(text);
        line.colour = colour < 0 || colour > kWhite ? 0 : colour;
    }
}

void saveFont(SettingsStore& settings, const FontKey& key, const EnvelopeLine& line) {
    settings.save(key.face, line.fontName);
    settings.save(key.size, numberText(line.fontSize));
    settings.save(key.colour, std::to_string(line.colour));
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string all;
    for (const std::string_view part : parts)
        all += part;
    return std::string(trimBlanks(all));
}

std::array<std::string, kAddressLines> addressOf(const PhonebookRecord& record) {
    const auto text = [&](Field field) { return record.text(field); };
    return {joined({text(Field::Title), " ", text(Field::First), " ", text(Field::Last)}),
            joined({text(Field::Position), "    ", text(Field::Company)}),
            joined({text(Field::Address1)}),
            joined({text(Field::Address2)}),
            joined({text(Field::Address3)}),
            joined({text(Field::Address4), "     ", text(Field::PostalCode)}),
            joined({text(Field::Country)})};
}

}  // namespace

void EnvelopeEditor::load() {
    content_ = {};
    for (std::size_t i = 0; i < kEnvelopeLines; ++i) {
        EnvelopeLine& line = content_.lines[i];
        if (i < kReturnLines)
            line.text = parts_.settings.read(keys::Return.at(i));
        else
            line.fontSize = kAddressSize;
        readFont(parts_.settings, fontKey(i == kLastReturnLine ? kLastReturnLine - 1 : i), line);
    }
}

void EnvelopeEditor::FillEnvelopeFromEntry() {
    auto* const address = content_.lines.data() + kReturnLines;
    std::for_each(address, address + kAddressLines, [](EnvelopeLine& line) { line.text.clear(); });
    std::size_t next = 0;
    for (std::string& text : addressOf(parts_.entry.read()))
        if (!text.empty())
            address[next++].text = std::move(text);
}

void EnvelopeEditor::formatBarcode() {
    if (const auto barcode = askForBarcode(parts_.messages))
        content_.EnvelopeBarcode = *barcode;
}

void EnvelopeEditor::saveReturnAddress() {
    parts_.settings.batch([this] {
        for (std::size_t i = 0; i < kReturnLines; ++i) {
            parts_.settings.save(keys::Return.at(i), content_.lines[i].text);
            saveFont(parts_.settings, fontKey(i), content_.lines[i]);
        }
    });
}

bool EnvelopeEditor::chooseFont(std::size_t line) {
    EnvelopeLine& present = content_.lines.at(line);
    const EnvelopeLine fresh;
    const auto chosen = parts_.fonts.choose(
        {.name = fresh.fontName, .size = fresh.fontSize, .colour = 0}, kSmallestFont, kLargestFont);
    if (!chosen)
        return false;
    present.fontName = chosen->name;
    present.fontSize = chosen->size;
    present.colour = std::max(chosen->colour, 0);
    if (line >= kReturnLines)
        parts_.settings.batch([&] { saveFont(parts_.settings, fontKey(line), present); });
    return true;
}

PrintEnd EnvelopeEditor::print() {
    const PrintTask task{.title = "Envelope " + content_.lines[kReturnLines].text,
                         .orientation = PageOrientation::Landscape,
                         .lastText = kApplicationTitle,
                         .failureIsTold = FailureIsTold::OnTheStatusLine};
    return parts_.printing.run(task, [this](PrintRun& run) {
        const EnvelopeContent content = content_;
        const EnvelopeFeed feed = readEnvelopeFeed(parts_.settings);
        parts_.messages.tell("Envelope",
                             "Please insert an envelope in your manual feed tray, or select your "
                             "envelope feeder.");
        run.tell("Printing Envelope");
        if (run.goOn())
            printEnvelopePage(run.printer, content, feed);
    });
}

}  // namespace velmora
