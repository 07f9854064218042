// Any bytes as the file of the settings: Velmora starts on it, by reading it or by putting it
// aside, and what is saved then is there.

#include <string>

#include "fuzz/DatabaseFile.h"
#include "platform/sqlite/SqliteSettings.h"

namespace velmora {
namespace {

using fuzz::require;

std::string soundSettings() {
    const fuzz::DatabaseFile file("settings.db");
    {
        SqliteSettings settings(file.path());
        settings.save("DocPad", "1");
        settings.save("Tasks\\NumTasks", "1");
        settings.save("Tasks\\1", "a line");
    }
    return file.bytes();
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    static const std::string sound = soundSettings();
    const fuzz::DatabaseFile file("settings.db");
    file.lay(sound, fuzz::Input(data, size));
    SqliteSettings settings(file.path());
    (void)settings.read("DocPad");
    (void)fuzz::succeeds([&] {
        for (const Setting& each : settings.readAll("Tasks\\"))
            require(each.key.size() >= 6, "a key begins as it was asked for");
    });
    if (fuzz::succeeds([&] { settings.save("DocPad", std::string("0\0 saved", 8)); }))
        require(settings.read("DocPad") == std::string("0\0 saved", 8), "what was saved is there");
    else
        require(!settings.putAside(), "where a file was put aside, there is room for a new one");
    (void)fuzz::succeeds([&] { settings.remove("Tasks\\1"); });
    return 0;
}
