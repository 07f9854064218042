#include "docpad/forms/PadEditText.h"

#include <utility>

#include "platform/Twips.h"
#include "platform/controls/PadEdit.h"

namespace velmora {

PadEditText::PadEditText(PadEdit& edit) : edit_(edit) {
    connect(&edit_, &PadEdit::textChanged, this, [this] {
        if (listener_)
            listener_();
    });
}

std::string PadEditText::bytes() const {
    return edit_.bytes();
}

bool PadEditText::empty() const {
    return edit_.isEmpty();
}

void PadEditText::setBytes(const std::string& bytes) {
    edit_.setBytes(bytes);
}

void PadEditText::reload(const std::string& bytes) {
    edit_.reload(bytes);
}

void PadEditText::append(const std::string& bytes) {
    edit_.append(bytes);
}

std::size_t PadEditText::selectionStart() const {
    return edit_.selectionStart();
}

std::size_t PadEditText::selectionLength() const {
    return edit_.selectionLength();
}

void PadEditText::select(std::size_t start, std::size_t length) {
    edit_.select(start, length);
}

void PadEditText::replaceSelection(const std::string& bytes) {
    edit_.replaceSelection(bytes);
}

int PadEditText::widthInTwips() const {
    return edit_.width() * kTwipsPerPixel;
}

void PadEditText::onChange(std::function<void()> listener) {
    listener_ = std::move(listener);
}

}  // namespace velmora
