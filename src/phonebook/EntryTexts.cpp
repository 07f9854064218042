#include "phonebook/EntryTexts.h"

#include <algorithm>

namespace velmora {
namespace {

// A length is one byte.
static_assert(std::ranges::all_of(kFieldPlaces,
                                  [](FieldPlace place) { return place.width < 256; }));

}  // namespace

void KeptTexts::clear() {
    places_.clear();
    bytes_.clear();
}

void KeptTexts::add(RecordView record) {
    places_.push_back(bytes_.size());
    for (const Field field : fields_) {
        const std::string_view text = record.text(field);
        bytes_ += static_cast<char>(static_cast<unsigned char>(text.size()));
        bytes_ += text;
    }
}

EntryTexts KeptTexts::of(RecordNumber number) const {
    EntryTexts texts;
    std::string_view rest(bytes_);
    rest.remove_prefix(places_.at(static_cast<std::size_t>(number - 1)));
    for (const Field field : fields_) {
        const auto length = static_cast<std::size_t>(static_cast<unsigned char>(rest.front()));
        texts.set(field, rest.substr(1, length));
        rest.remove_prefix(length + 1);
    }
    return texts;
}

}  // namespace velmora
