#include "phonebook/CardText.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace velmora {
namespace {

constexpr const char* kLineEnd = "\r\n";

class Card {
  public:
    explicit Card(RecordView record) : record_(record) {}

    Card& add(std::string_view text) {
        text_ += text;
        return *this;
    }
    Card& add(Field field) { return add(record_.text(field)); }
    void endLine() { text_ += kLineEnd; }

    [[nodiscard]] bool hasAny(std::initializer_list<Field> fields) const {
        return std::any_of(fields.begin(), fields.end(),
                           [this](Field field) { return !record_.isEmpty(field); });
    }

    [[nodiscard]] std::string take() { return std::move(text_); }

  private:
    RecordView record_;
    std::string text_;
};

void addName(Card& card, const CardStyle& style) {
    if (!card.hasAny({Field::Last})) {
        card.add(Field::Company).endLine();
        return;
    }
    card.add(Field::Title).add(" ").add(Field::First).add(" ").add(Field::Last);
    if (style.spouse)
        card.add("    Spouse: ").add(Field::Spouse);
    card.endLine();
    card.add(Field::Position).add(style.beforeCompany).add(Field::Company).endLine();
}

void addAddress(Card& card, const CardStyle& style) {
    if (card.hasAny({Field::Address1, Field::Address2}))
        card.add(Field::Address1).add(" , ").add(Field::Address2).endLine();
    if (card.hasAny({Field::Address3, Field::Address4}) ||
        (style.postalAlone && card.hasAny({Field::PostalCode}))) {
        card.add(Field::Address3).add(style.withinAddress).add(Field::Address4);
        card.add(style.beforePostal).add(Field::PostalCode).endLine();
    }
    card.add(Field::Country).endLine();
}

void addNumbers(Card& card) {
    if (card.hasAny({Field::Phone, Field::WorkPhone, Field::Fax})) {
        card.add("H: ").add(Field::Phone).add("    W: ").add(Field::WorkPhone);
        card.add("    F: ").add(Field::Fax).endLine();
    }
    if (card.hasAny({Field::Pager, Field::OtherPhone, Field::EMail})) {
        card.add("P: ").add(Field::Pager).add("    O: ").add(Field::OtherPhone);
        card.add("    Em: ").add(Field::EMail).endLine();
    }
}

}  // namespace

std::string cardText(RecordView record, const CardStyle& style) {
    Card card(record);
    addName(card, style);
    addAddress(card, style);
    addNumbers(card);
    card.add(Field::Custom1).add(style.betweenCustoms).add(Field::Custom2).endLine();
    card.add(Field::Class).endLine();
    card.add(Field::Memo);
    std::string text = card.take();
    if (const std::size_t ampersand = text.find('&');
        style.plusForAmpersand && ampersand != std::string::npos)
        text[ampersand] = '+';
    return text;
}

}  // namespace velmora
