#pragma once

#include <string>

#include "phonebook/RecordView.h"

namespace velmora {

// The text that shows all of an entry, in lines that end in CR LF. A person's card begins with
// the name, that of a record without a last name with the company. Only the first "&" becomes "+".
[[nodiscard]] std::string entryCard(RecordView record);

}  // namespace velmora
