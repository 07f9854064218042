#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "docpad/DialogState.h"
#include "docpad/DocPad.h"
#include "docpad/PadFakes.h"
#include "docpad/RecoveryFile.h"

#include "platform/CodePage.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeClock.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/FakeRunningPrograms.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"
#include "support/TemporaryFolder.h"

namespace velmora::test {

// DocPad on real files in a folder of its own, with everything else faked.
struct DocPadWorld {
    // Answers the next file dialog.
    void willChoose(const std::string& name) {
        messages.willAnswer(std::optional<std::string>(folder.file(name)));
    }
    void willCancel() { messages.willAnswer(std::optional<std::string>()); }

    // As if the user had typed it.
    void type(const std::string& bytes) {
        text.select(text.text.size(), 0);
        text.replaceSelection(bytes);
    }

    TemporaryFolder folder;
    PosixFiles files{NativePaths(CodePage::western())};
    MemorySettings medium;
    SettingsStore settings{medium};
    SharedState state;
    FakeMessages messages;
    FakeStatusLine status;
    FakePadText text;
    FakeDocPadView view;
    FakePadPrinter printer{text};
    DialogState dialog{messages};
    FakeRunningPrograms programs;
    FakeClock clock;
    RecoveryFile recovery{folder.path(), files, programs, clock};
    FakeEventLoop loop;
    DocPad pad{
        {text, view, dialog, state, messages, files, settings, status, printer, recovery, loop}};
};

}  // namespace velmora::test
