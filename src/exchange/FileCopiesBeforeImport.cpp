#include "exchange/FileCopiesBeforeImport.h"

#include "phonebook/BookCopy.h"
#include "platform/Failure.h"
#include "platform/files/FileSteps.h"
#include "platform/files/FolderNames.h"

namespace velmora {

std::string FileCopiesBeforeImport::copyBook(const std::string& bookFile,
                                             const std::function<bool()>& goOn) {
    if (!parts_.books.exists(bookFile) || parts_.books.open(bookFile)->count() == 0)
        return {};
    const NativePath book = parts_.paths.nativePath(parts_.locations.BookPath(bookFile));
    const NativePath target = nameBeforeImport(book, parts_.clock.now(), isNameTaken);
    BookCopy copy(parts_.books, parts_.replacements, {bookFile, book, target});
    while (copy.step())
        if (!goOn())
            return {};
    clearOldCopiesBeforeImport(book);
    return parts_.codePage.fromUtf8(target.utf8());
}

void clearOldCopiesBeforeImport(const NativePath& file) {
    for (const std::string& name : outdatedBeforeImports(file.name(), namesIn(file.folder())))
        ignoringErrors([&] { removeIfThere(file.sibling(name)); });
}

}  // namespace velmora
