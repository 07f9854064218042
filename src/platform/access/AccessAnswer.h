#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/AccessTableReader.h"
#include "platform/access/AccessWire.h"

// What the reading child process answers. None of it is believed: all throw Failure for an answer
// that is no sound one.
namespace velmora::access {

// Takes an answer as it arrives, piece by piece, and hands its messages on up to the one that ends
// it well.
class AccessAnswer {
  public:
    explicit AccessAnswer(std::function<void(const Message&)> take) : take_(std::move(take)) {}

    void feed(std::string_view bytes);

    // No more will come. `endedWell`: the child ended by itself and without a complaint.
    void end(bool endedWell) const;

  private:
    std::function<void(const Message&)> take_;
    MessageSplitter splitter_;
    std::size_t total_ = 0;
    bool ended_ = false;
};

// Puts tables and their fields together.
class TableCollector {
  public:
    void add(const Message& message);
    [[nodiscard]] std::vector<AccessTable> take() { return std::move(tables_); }

  private:
    void addField(std::string_view text);

    std::vector<AccessTable> tables_;
};

// Puts values together to rows, all of one length.
class RowCollector {
  public:
    // `take` must outlive this object.
    explicit RowCollector(const std::function<void(const AccessRow&)>& take) : take_(take) {}

    void add(const Message& message);

    // Hands the last row on.
    void finish();

  private:
    [[nodiscard]] std::optional<std::string>& value();

    const std::function<void(const AccessRow&)>& take_;
    AccessRow row_;
    std::optional<std::size_t> width_;
    bool begun_ = false;
};

}  // namespace velmora::access
