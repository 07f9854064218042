#pragma once

#include <string>
#include <vector>

namespace velmora {

// Starts programs beside Velmora. No shell ever sees what is passed on here, and what a program
// writes or how it ends is nobody's business.
class ProgramStarter {
  public:
    virtual ~ProgramStarter() = default;

    // Starts `program`, a path or a name on the search path, in a window of its own. Each argument
    // reaches it as one. All texts are code-page text. False when nothing was started: a program
    // that is not there, an empty one, or a text with a NUL or a line end in it.
    virtual bool start(const std::string& program, const std::vector<std::string>& arguments) = 0;

    // As start(), in a window that begins as small as the desktop can make it.
    virtual bool startMinimised(const std::string& program,
                                const std::vector<std::string>& arguments) = 0;

    // Whether start() would find `program`.
    [[nodiscard]] virtual bool finds(const std::string& program) const = 0;
};

// Opens a document or an address with what the desktop has for it.
class SystemOpener {
  public:
    virtual ~SystemOpener() = default;

    // `target` is an address with its scheme ("mailto:...") or the absolute path of a file, in
    // code-page text. Failures show nothing.
    virtual void open(const std::string& target) = 0;
};

// Sends keys to another program.
class KeystrokeSender {
  public:
    virtual ~KeystrokeSender() = default;

    // "%N" is Alt+N. With `wait` it returns when they were taken.
    virtual void send(const std::string& keys, bool wait) = 0;
};

}  // namespace velmora
