#pragma once

#include <string>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Format.h"

namespace velmora {

// The text file of calls, in the program's own folder. One line for each call: date, time,
// direction and number, with single tabs between them and CR LF at the end. The user may write
// into the file by hand; the program never reads meaning from it.
class PhoneLog {
  public:
    enum class Direction { Outgoing, Incoming };

    // `programFolder` has no separator at its end.
    PhoneLog(std::string programFolder, Files& files, const Clock& clock,
             const LocaleFormats& locale)
        : programFolder_(std::move(programFolder)), files_(files), clock_(clock), locale_(locale) {}

    // Puts one complete line behind the end, dated with the present moment. Throws Failure.
    void append(Direction direction, const std::string& number);

    // The file as the dialer creates it.
    [[nodiscard]] std::string path() const { return programFolder_ + "\\phonelog.txt"; }

    // The same file under the name that DocPad shows for it.
    [[nodiscard]] std::string documentPath() const { return programFolder_ + "\\PHONELOG.TXT"; }

    // Creates an empty log when there is none. Throws Failure.
    void createIfMissing();

  private:
    std::string programFolder_;
    Files& files_;
    const Clock& clock_;
    const LocaleFormats& locale_;
};

}  // namespace velmora
