#include "app/World.h"

#include <QLocale>
#include <utility>

#include "platform/files/ProgramFolder.h"
#include "platform/files/TemporaryName.h"
#include "platform/qt/QtLocaleFormats.h"

namespace velmora {
namespace {

std::string withoutSeparator(const char* name) {
    return std::string(name).substr(1);
}

}  // namespace

World::World(NativePath programFolder)
    : codePage(CodePage::forLocale(QLocale::system().name().toStdString())),
      locale(localeFormats(QLocale::system(), codePage)),
      nativeProgramFolder(std::move(programFolder)),
      books(codePage, clock,
            {withoutSeparator(kYellowPagesFile), withoutSeparator(kWhitePagesFile)}),
      files(
          NativePaths(codePage, codePage.fromUtf8(nativeProgramFolder.utf8()), nativeProgramFolder),
          &books),
      settingsMedium(configurationFolder() / "settings.db"),
      locations(codePage.fromUtf8(nativeProgramFolder.utf8()), settings, files, codePage) {
    for (const NativePath& folder : {nativeProgramFolder, configurationFolder()})
        clearAbandonedBeside(folder / "");
}

}  // namespace velmora
