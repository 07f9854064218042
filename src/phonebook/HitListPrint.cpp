#include "phonebook/HitListPrint.h"

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr float kHeadSize = 14;  // points

}  // namespace

void HitListPrint::print(std::span<const std::string> lines) {
    if (jobs_.refuses(status_))
        return;
    const float size = printer_.FontSize();
    printer_.SetScaleMode(kInches);
    printer_.SetFontSize(kHeadSize);
    printer_.Print("Velmora: Search Results          " +
                   formatMoment(clock_.now(), NamedFormat::LongDate, locale_));
    printer_.Print("");
    printer_.Print("");
    printer_.SetFontSize(size);
    for (const std::string& line : lines)
        printer_.Print(line);
    try {
        printer_.EndDoc();
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
}

}  // namespace velmora
