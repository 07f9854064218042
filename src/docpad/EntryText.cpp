#include "docpad/EntryText.h"

#include <string_view>

#include "docpad/LetterHead.h"
#include "platform/Text.h"

namespace velmora {
namespace {

std::string captionOf(const SettingsStore& settings, const char* key) {
    const std::string value = settings.Read(key);
    const std::string_view caption = trimBlanks(value);
    return caption.empty() ? key : std::string(caption);
}

}  // namespace

EntryTextStyle readEntryTextStyle(const SettingsStore& settings) {
    const std::string numbers = settings.Read("LetterTel");
    const std::string_view shown = trimBlanks(numbers);
    return {shown.empty() || shown == "1", captionOf(settings, "Custom1"),
            captionOf(settings, "Custom2")};
}

std::string entryText(RecordView entry, const EntryTextStyle& style) {
    std::string lines;
    const auto add = [&lines](std::string_view caption, std::string_view value) {
        if (value.empty())
            return;
        lines += caption;
        lines += value;
        lines += "\r\n";
    };
    const auto addField = [&](std::string_view caption, Field field) {
        add(caption, entry.text(field));
    };
    add("", nameLine(entry));
    addField("", Field::Position);
    addField("", Field::Company);
    addField("Spouse: ", Field::Spouse);
    for (const Field field : {Field::Address1, Field::Address2, Field::Address3, Field::Address4,
                              Field::PostalCode, Field::Country})
        addField("", field);
    if (!style.withNumbers)
        return lines;
    addField("Home Phone: ", Field::Phone);
    addField("Work Phone: ", Field::WorkPhone);
    addField("Pager: ", Field::Pager);
    addField("Other Phone: ", Field::OtherPhone);
    addField("Fax: ", Field::Fax);
    addField("E-Mail: ", Field::EMail);
    addField("Web Page: ", Field::WebPage);
    addField(style.custom1 + ": ", Field::Custom1);
    addField(style.custom2 + ": ", Field::Custom2);
    addField("Memo: ", Field::Memo);
    addField("Class: ", Field::Class);
    addField("Date Reference: ", Field::DateReference);
    return lines;
}

}  // namespace velmora
