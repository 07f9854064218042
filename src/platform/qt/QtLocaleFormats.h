#pragma once

#include "platform/CodePage.h"
#include "platform/Format.h"

class QLocale;

namespace velmora {

// The names and patterns of a locale. English ones for the locale "C", and where the code page has
// no place for all letters of a locale's own: a date is to be read, and "?" says nothing.
[[nodiscard]] LocaleFormats localeFormats(const QLocale& locale, const CodePage& codePage);

}  // namespace velmora
