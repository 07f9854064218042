#pragma once

#include <string>

#include "core/DataLocations.h"
#include "core/SettingsStore.h"
#include "platform/CodePage.h"
#include "platform/Format.h"
#include "platform/PrintRecorder.h"
#include "platform/SystemClock.h"
#include "platform/files/CaseTwins.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixRunningPrograms.h"
#include "platform/qt/PrintService.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtPrintMetrics.h"
#include "platform/qt/QtPrinters.h"
#include "platform/sqlite/SqliteSettings.h"

namespace velmora {

// What surrounds the program: the user's locale, the clock, files, settings, boxes, the loop
// and the printers.
struct World {
    // `programFolder` is the folder of the data beside the program.
    explicit World(NativePath programFolder);

    CodePage codePage;
    LocaleFormats locale;
    SystemClock clock;
    NativePath nativeProgramFolder;
    CaseTwins books;
    PosixFiles files;
    PosixRunningPrograms runningPrograms;
    SqliteSettings settingsMedium;
    SettingsStore settings{settingsMedium};
    DataLocations locations;
    QtEventLoop loop;
    QtMessages messages{codePage};
    PrintService printService;
    QtPrintMetrics printMetrics{codePage, printService};
    QtPrinters printers{messages, files, codePage, printService};
    PrintRecorder printer{printMetrics, printers};  // jobs on it run through JobRoom
};

}  // namespace velmora
