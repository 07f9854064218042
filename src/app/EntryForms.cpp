#include "app/EntryForms.h"

#include "docpad/forms/RecoveryTimer.h"
#include "phonebook/forms/AddForm.h"
#include "platform/Failure.h"
#include "platform/qt/BoxOwner.h"

namespace velmora {
namespace {

// Milliseconds after the last change and after the first one.
constexpr int kPause = 500;
constexpr int kLongest = 1500;

}  // namespace

void EntryForms::openEntryForm(EntryEditor& editor) {
    AddForm form(editor, parts_.messages, parts_.statusLine, parts_.codePage, &parts_.window);
    const auto keep = [&] {
        ignoringErrors([&] { parts_.recovery.keep({editor.origin(), form.values()}); });
        return false;  // done
    };
    RecoveryTimer timer(keep);
    timer.setTimes(kPause, kLongest);
    QObject::connect(&form, &AddForm::edited, &timer, &RecoveryTimer::changed);
    keepOpenForm_ = [&] {
        if (timer.waiting())
            keep();
    };
    runOverOwner(form);
    keepOpenForm_ = nullptr;
    ignoringErrors([&] { parts_.recovery.discard(); });
}

void EntryForms::keepForNextStart() {
    if (keepOpenForm_)
        keepOpenForm_();
}

}  // namespace velmora
