#include "phonebook/HitListPrint.h"

#include <vector>

#include "core/PrintFace.h"

namespace velmora {
namespace {

constexpr float kHeadSize = 14;  // points

}  // namespace

void HitListPrint::print(std::span<const std::string> lines) {
    const std::vector<std::string> hits(lines.begin(), lines.end());
    const PrintTask task{.title = "Search Results", .fontName = listFace(settings_)};
    printing_.run(task, [&](PrintRun& run) {
        PrintSurface& printer = run.printer;
        const float size = printer.FontSize();
        printer.SetFontSize(kHeadSize);
        printer.Print("Velmora: Search Results          " +
                      formatMoment(clock_.now(), NamedFormat::LongDate, locale_));
        printer.Print("");
        printer.Print("");
        printer.SetFontSize(size);
        for (const std::string& line : hits) {
            printer.Print(line);
            if (!run.goOn())
                return;
        }
    });
}

}  // namespace velmora
