#include "exchange/Backup.h"

#include "phonebook/BookCopy.h"
#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr const char* kNotComplete = "The backup is not complete.";

}  // namespace

std::vector<std::string> Backup::volumes() const {
    std::vector<std::string> names;
    for (const NativePath& root : parts_.volumes.mounted())
        names.push_back(nameOf(root));
    return names;
}

std::string Backup::nameOf(const NativePath& root) const {
    return parts_.codePage.fromUtf8(root.utf8());
}

NativePath Backup::volumeOf(const std::string& name) const {
    for (const NativePath& root : parts_.volumes.mounted())
        if (nameOf(root) == name)
            return root;
    throw Failure("The drive " + parts_.codePage.toUtf8(name) +
                  " is no longer there, or can not be written.");
}

void Backup::run(const std::string& volume) {
    bool complete = false;
    parts_.jobs.run(
        [&](LongJob& job) {
            job.tell("Please wait while backing-up.");
            try {
                complete = copyBooks(job, volumeOf(volume));
            } catch (const Failure&) {
                job.tell(kNotComplete);
                throw;
            }
            if (!complete)
                job.tell(std::string(kNotComplete) + " It was called off.");
        },
        &parts_.panel);
    if (!complete)
        return;
    parts_.messages.tell(kApplicationTitle, "Backup complete.");
    parts_.jobs.status().show("Backup completed.");
}

bool Backup::copyBooks(LongJob& job, const NativePath& volume) {
    return copyBook(job, kYellowPagesFile, volume / "datay.qel") &&
           copyBook(job, kWhitePagesFile, volume / "dataw.qel");
}

// False when the job was called off.
bool Backup::copyBook(LongJob& job, const char* bookFile, const NativePath& target) {
    const NativePath book = parts_.paths.nativePath(parts_.locations.BookPath(bookFile));
    // There the copy would be taken for the book.
    if (parts_.replacements.areOne(book.folder(), target.folder()))
        throw Failure(
            "The phonebook " + book.utf8() +
            " can not be backed up to the folder in which it lies. Choose another drive.");
    BookCopy copy(parts_.books, parts_.replacements, {bookFile, book, target});
    while (copy.step()) {
        parts_.panel.showProgress(copy.recordsDone(), copy.records());
        if (!job.goOn())
            return false;
    }
    return true;
}

}  // namespace velmora
