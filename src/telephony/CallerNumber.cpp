#include "telephony/CallerNumber.h"

#include <algorithm>
#include <utility>

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr std::size_t kAreaLength = 3;
constexpr std::size_t kExchangeLength = 3;
constexpr std::array kNumberFields{Field::Phone, Field::WorkPhone, Field::Fax, Field::OtherPhone};

}  // namespace

CallerNumber::CallerNumber(std::string number) {
    const std::string area(left(number, kAreaLength));
    const std::string rest(middle(number, kAreaLength + 1));
    const std::string local = std::string(left(rest, kExchangeLength)) + "-" +
                              std::string(middle(rest, kExchangeLength + 1));
    forms_ = {std::move(number), local, "(" + area + ") " + local, area + " " + local,
              area + "-" + local};
}

bool CallerNumber::isIn(RecordView record) const {
    return std::ranges::any_of(kNumberFields,
                               [&](Field field) { return isForm(record.text(field)); });
}

bool CallerNumber::isForm(std::string_view number) const {
    return std::ranges::find(forms_, number) != forms_.end();
}

}  // namespace velmora
