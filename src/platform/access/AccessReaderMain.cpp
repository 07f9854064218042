#include "platform/access/AccessReaderMain.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>

#include "platform/Failure.h"
#include "platform/access/AccessFile.h"
#include "platform/access/AccessWire.h"
#include "platform/access/Confinement.h"

namespace velmora::access {

namespace {

constexpr rlim_t kSecondsOfWork = 20;
constexpr rlim_t kBytesOfMemory = 1ULL << 30;
constexpr std::size_t kBlock = 1 << 16;

// The sanitizer reserves far more address space than any limit would leave.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kIsSanitized = true;
#elif defined(__has_feature)
constexpr bool kIsSanitized = __has_feature(address_sanitizer) != 0;
#else
constexpr bool kIsSanitized = false;
#endif

void limit(int resource, rlim_t value) {
    const rlimit both{value, value};
    (void)::setrlimit(static_cast<__rlimit_resource_t>(resource), &both);
}

void limitThisProcess() {
    limit(RLIMIT_CPU, kSecondsOfWork);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);  // it has no business writing files
    if (!kIsSanitized)
        limit(RLIMIT_AS, kBytesOfMemory);
    // A parent that is gone wants no answer.
    (void)::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

// Collects messages and writes them out in blocks. Throws Failure when nobody listens.
class Output {
  public:
    void send(MessageKind kind, std::string_view text = {}) {
        appendMessage(bytes_, kind, text);
        if (bytes_.size() >= kBlock)
            flush();
    }

    void flush() {
        std::string_view rest = bytes_;
        while (!rest.empty()) {
            const ssize_t written = ::write(STDOUT_FILENO, rest.data(), rest.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                throw systemFailure("The rows can not be handed on", errno);
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
        bytes_.clear();
    }

  private:
    std::string bytes_;
};

char letterOf(AccessType type) {
    return "TNBDO"[static_cast<int>(type)];
}

void sendTables(AccessFile& file, Output& output) {
    for (const AccessTable& table : file.tables()) {
        output.send(MessageKind::Table, (table.isSystem ? 'S' : 'U') + table.name);
        for (const AccessField& field : table.fields)
            output.send(MessageKind::Field, letterOf(field.type) + field.name);
    }
}

void sendRows(AccessFile& file, const std::string& table, Output& output) {
    file.readRows(table, [&](const AccessRow& row) {
        output.send(MessageKind::Row);
        for (const auto& value : row)
            output.send(value ? MessageKind::Value : MessageKind::Null, value.value_or(""));
    });
}

int answer(int argc, char** argv) {
    if (argc < 3 || argc > 4)
        return 2;
    limitThisProcess();
    Output output;
    try {
        try {
            AccessFile file(argv[2]);
            // From here on what the file holds is followed: it and the converters of texts are open
            // by now.
            (void)confineThisProcess();
            if (argc == 4)
                sendRows(file, argv[3], output);
            else
                sendTables(file, output);
            output.send(MessageKind::End);
        } catch (const Failure& failure) {
            output.send(MessageKind::Error, failure.what());
        }
        output.flush();
    } catch (const std::exception&) {
        return 1;  // nobody listens, or memory ran out; the parent sees that the end is missing
    }
    return 0;
}

}  // namespace

bool isAccessReaderCall(int argc, char** argv) {
    return argc >= 2 && std::strcmp(argv[1], kReaderArgument) == 0;
}

int accessReaderMain(int argc, char** argv) {
    // What libraries do at a usual end may need what this process may not do any more.
    ::_exit(answer(argc, argv));
}

}  // namespace velmora::access
