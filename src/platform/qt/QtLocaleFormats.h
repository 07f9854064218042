#pragma once

#include "platform/CodePage.h"
#include "platform/Format.h"

class QLocale;

namespace velmora {

// The names and patterns of a locale. English ones for the locale "C".
[[nodiscard]] LocaleFormats localeFormats(const QLocale& locale, const CodePage& codePage);

}  // namespace velmora
