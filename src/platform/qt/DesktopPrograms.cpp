#include "platform/qt/DesktopPrograms.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr const char* kOpener = "xdg-open";

// A NUL would end an argument early, and a line end is no part of any name or address.
bool isOneLine(const std::string& text) {
    return std::ranges::none_of(text, [](char c) { return c == '\0' || c == '\r' || c == '\n'; });
}

bool isProgram(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

}  // namespace

bool QtProgramStarter::start(const std::string& program,
                             const std::vector<std::string>& arguments) {
    if (program.empty() || !isOneLine(program) || !std::ranges::all_of(arguments, isOneLine))
        return false;
    QStringList list;
    for (const std::string& argument : arguments)
        list << toQt(argument, codePage_);
    QProcess process;
    process.setProgram(toQt(program, codePage_));
    process.setArguments(list);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

bool QtProgramStarter::finds(const std::string& program) const {
    if (program.empty() || !isOneLine(program))
        return false;
    const QString name = toQt(program, codePage_);
    return name.contains(QLatin1Char('/')) ? isProgram(name)
                                           : !QStandardPaths::findExecutable(name).isEmpty();
}

void DesktopOpener::open(const std::string& target) {
    starter_.start(kOpener, {target});
}

}  // namespace velmora
