#pragma once

#include <string>
#include <vector>

#include "core/PrintJobs.h"
#include "docpad/PadText.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

namespace velmora {

// Sends DocPad's text as a fax: it is printed on the queue of a fax machine, which is the current
// printer from then on.
class Fax {
  public:
    // All must outlive this object.
    struct Parts {
        PrintJobs& printing;
        const PadText& text;
        StatusLine& status;
        Messages& messages;
    };
    explicit Fax(const Parts& parts) : parts_(parts) {}

    // Tells the user to wait. False, and the status line says why, while another job runs.
    [[nodiscard]] bool begin();

    // The print queues by name, as the system lists them now; events run while it is asked.
    [[nodiscard]] std::vector<std::string> queues();

    // The queue that everything is printed on now.
    [[nodiscard]] std::string currentQueue() const;

    // Makes `queue` the current printer, the last of that name where there are several, and prints
    // the text on it as one block; "Velmora: Fax" where there is none. With an empty name the
    // current printer stays. Events run. A queue that is not there any more is told, and nothing
    // is sent; so is what the printer refuses.
    void send(const std::string& queue);

  private:
    [[nodiscard]] bool choose(const std::string& queue);

    Parts parts_;
};

}  // namespace velmora
