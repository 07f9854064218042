#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Whether a text begins with a scheme such as "http:" or "mailto:". A host with a port
// ("localhost:8080") has none.
[[nodiscard]] bool hasScheme(std::string_view text);

// What the desktop is asked to open for a web page as it stands in an entry: blanks and NULs at the
// ends off, and "http://" in front where it has no scheme. Nothing for an empty one, and for one
// that would reach into the files of this machine.
[[nodiscard]] std::string webTarget(std::string_view webPage);

// The same for an attachment: an address with a scheme as it stands, else the absolute path of a
// file; a relative one lies in `folder`, which has no separator at its end.
[[nodiscard]] std::string attachmentTarget(std::string_view attachment, std::string_view folder);

}  // namespace velmora
