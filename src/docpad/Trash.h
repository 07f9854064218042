#pragma once

#include <string>

#include "core/SharedState.h"
#include "docpad/DialogState.h"
#include "docpad/DocPadView.h"
#include "docpad/PadText.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "platform/Messages.h"

namespace velmora {

// Where the trash can is shown. Only Image2 takes drops.
class TrashView {
  public:
    virtual ~TrashView() = default;

    enum class Picture {
        Image2,  // the can at rest
        Image5,  // the two of the animation
        Image6,
    };

    // Shows one picture and hides the other two.
    virtual void show(Picture picture) = 0;
};

// The entry that a line of the list stands for.
class DroppedEntry {
  public:
    virtual ~DroppedEntry() = default;

    // True while the list is in view and has a selected line.
    [[nodiscard]] virtual bool available() const = 0;

    // The Delete command on that line, its question included.
    virtual void remove() = 0;
};

// What a drop on the trash can does.
class Trash {
  public:
    struct Parts {
        PadText& text;
        DocPadView& view;
        DialogState& dialog;
        SharedState& state;
        Messages& messages;
        Files& files;
        EventLoop& loop;
        TrashView& pictures;
        DroppedEntry& entry;
    };

    explicit Trash(const Parts& parts) : parts_(parts) {}

    // A line of the list: the entry is deleted. The animation runs whatever the user answers.
    void dropEntry();

    // DocPad's icon: after a question its text is emptied and its file, if it has one, removed
    // from the disk. Where that fails the standard error box is shown and the text stays.
    void dropDocPad();

  private:
    [[nodiscard]] bool deleteDocument(const std::string& name);
    void animate();

    Parts parts_;
    bool animating_ = false;
};

}  // namespace velmora
