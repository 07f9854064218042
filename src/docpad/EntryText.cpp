#include "docpad/EntryText.h"

#include <string_view>

#include "docpad/LetterHead.h"
#include "platform/Text.h"

namespace velmora {

EntryTextStyle readEntryTextStyle(const SettingsStore& settings) {
    return {settings.read(keys::LetterTel), settings.read(keys::Custom1),
            settings.read(keys::Custom2)};
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
