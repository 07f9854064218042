#pragma once

#include <chrono>

namespace velmora {

// The toolkit asks the session bus when it starts, and waits for it: one that takes connections but
// never says a word would keep the program from ever showing a window. So the bus is asked for a
// word first; where none has come by the limit, the environment of this process names no session
// bus from here on. To be called before there is a second thread. A bus that works answers within
// a millisecond; one that is just being started may need some seconds.
void forgetSilentSessionBus(std::chrono::milliseconds limit = std::chrono::seconds(3));

}  // namespace velmora
