#pragma once

#include <string>

#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"
#include "platform/start/MeetingPlace.h"

namespace velmora {

// The meeting place, opened: its folder may have a path of any length, which the address of a
// socket may not. No operation waits.
class LocalSocket {
  public:
    explicit LocalSocket(const MeetingPlace& place);

    // Not open where the folder is gone.
    [[nodiscard]] const FileDescriptor& folder() const { return folder_; }

    // A connection to whoever listens there; not open, with errno set, where nobody does.
    [[nodiscard]] FileDescriptor connect() const;

    // Listens there, in place of a socket that nobody listens at any more. Not open on failure.
    [[nodiscard]] FileDescriptor listen() const;

    // Takes the socket away.
    void remove() const;

  private:
    FileDescriptor folder_;
    std::string name_;
};

// True when the program at the other end runs for the same user.
[[nodiscard]] bool isOfSameUser(const FileDescriptor& connection);

}  // namespace velmora
