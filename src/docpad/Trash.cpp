#include "docpad/Trash.h"

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

void Trash::dropEntry() {
    if (animating_ || !parts_.entry.available())
        return;
    parts_.entry.remove();
    animate();
}

void Trash::dropDocPad() {
    if (animating_)
        return;
    // The file that the question names is the one that goes, whatever happens meanwhile.
    const std::string name = parts_.dialog.fileName();
    const std::string what(trimBlanks(name.empty() ? "DocPad's contents" : name));
    if (!parts_.messages.ask("Confirmation:", "Are you sure that you want to delete " + what + "?",
                             Answer::No))
        return;
    if (deleteDocument(name))
        animate();
}

bool Trash::deleteDocument(const std::string& name) {
    if (!name.empty()) {
        try {
            parts_.files.remove(name);
        } catch (const Failure& failure) {
            parts_.state.DocPadDirty = 1;
            parts_.messages.standardError(failure.what());
            return false;
        }
    }
    parts_.text.setBytes("");
    if (!name.empty())
        parts_.view.setTitle("DocPad");
    return true;
}

void Trash::animate() {
    using namespace std::chrono_literals;
    animating_ = true;
    parts_.pictures.show(TrashView::Picture::Image5);
    parts_.loop.waitFor(2s);
    if (!parts_.loop.closing()) {
        parts_.pictures.show(TrashView::Picture::Image6);
        parts_.loop.waitFor(1s);
    }
    // While the program ends there may be no picture left to show.
    if (!parts_.loop.closing())
        parts_.pictures.show(TrashView::Picture::Image2);
    animating_ = false;
}

}  // namespace velmora
