#pragma once

#include <functional>
#include <list>
#include <memory>
#include <string>

#include "platform/Polled.h"
#include "platform/files/FileDescriptor.h"
#include "platform/start/LocalSocket.h"

namespace velmora {

// What a later start hands over with the wish to see the window.
struct Summons {
    // With which the desktop lets a window come to the front; empty where it gave none.
    std::string activationToken;
};

// How a summons looks on its way, a line of text each.
[[nodiscard]] std::string lineOf(const Summons& summons);
inline constexpr const char* kShownLine = "shown\n";

// The first start, as later ones find it. The place is free again when this goes.
class StartListener final : public Polled {
  public:
    // `listening` is what `socket` gave.
    StartListener(LocalSocket socket, FileDescriptor listening);
    ~StartListener() override;

    // Called for each later start, which waits until it returns; to be set before the listener is
    // driven. It lets no events run. Without one, later starts wait.
    void onSummons(std::function<void(const Summons& summons)> show) { show_ = std::move(show); }

    [[nodiscard]] bool begin() override;
    [[nodiscard]] Wait wait() const override;
    [[nodiscard]] bool goOn() override;

  private:
    struct Caller {
        FileDescriptor connection;
        std::string said{};
    };

    void acceptCallers();
    [[nodiscard]] bool hear(Caller& caller);

    LocalSocket socket_;
    std::unique_ptr<FileDescriptor> listening_;  // closed behind the socket's end
    FileDescriptor events_;                      // of all connections
    std::list<Caller> callers_;                  // the oldest first
    std::function<void(const Summons& summons)> show_;
};

}  // namespace velmora
