#include "platform/access/ChildAccessReader.h"

#include <string_view>
#include <utility>

#include "platform/access/AccessAnswer.h"
#include "platform/access/AccessReaderMain.h"
#include "platform/access/ChildProcess.h"

namespace velmora::access {

namespace {

// Runs the child and hands its messages on, up to the one that ends them well.
void converse(const std::vector<std::string>& arguments, const ChildProcess::Waiting& waiting,
              const std::function<void(const Message&)>& take) {
    ChildProcess child(arguments, waiting);
    AccessAnswer answer(take);
    for (std::string_view bytes = child.read(); !bytes.empty(); bytes = child.read())
        answer.feed(bytes);
    answer.end(child.endedWell());
}

}  // namespace

ChildAccessReader::ChildAccessReader(std::string program, std::chrono::milliseconds patience)
    : program_(std::move(program)), patience_(patience) {}

ChildAccessReader::ChildAccessReader(std::function<void()> whileWaiting) : ChildAccessReader() {
    whileWaiting_ = std::move(whileWaiting);
}

std::vector<AccessTable> ChildAccessReader::tables(const NativePath& path) {
    TableCollector tables;
    converse({program_, kReaderArgument, path.utf8()}, {patience_, whileWaiting_},
             [&](const Message& message) { tables.add(message); });
    return tables.take();
}

void ChildAccessReader::readRows(const NativePath& path, const std::string& table,
                                 const std::function<void(const AccessRow&)>& take) {
    RowCollector rows(take);
    converse({program_, kReaderArgument, path.utf8(), table}, {patience_, whileWaiting_},
             [&](const Message& message) { rows.add(message); });
    rows.finish();
}

}  // namespace velmora::access
