#pragma once

#include <string_view>

#include "platform/NativePath.h"

namespace velmora {

// Who may use a file that is made anew; one that is there keeps what it has.
enum class Audience {
    AsUsual,    // as the user's mask has it
    OwnerOnly,  // the user alone
};

// Replaces a file whole, or makes it: the bytes are written to a new file beside it, handed to the
// disk, and renamed into its place, which keeps its permissions and its owner. Links are followed,
// those whose end is not there yet too.
//
// Where nothing may be made beside it or take its place (a folder that may not be written, a
// mounted file, a file of another owner) the bytes are written over the old ones; room for them is
// taken first, and the old ones are put back when that fails.
//
// Throws Failure; the old file is then as it was and nothing is left beside it.
void replaceFile(const NativePath& path, std::string_view bytes,
                 Audience audience = Audience::AsUsual);

}  // namespace velmora
