#pragma once

#include <QObject>
#include <functional>
#include <string>

#include "docpad/PadText.h"

namespace velmora {

class PadEdit;

// `Text4` as the logic of DocPad sees it.
class PadEditText final : public QObject, public PadText {
    Q_OBJECT

  public:
    // `edit` must outlive this object.
    explicit PadEditText(PadEdit& edit);

    [[nodiscard]] std::string bytes() const override;
    [[nodiscard]] bool empty() const override;
    void setBytes(const std::string& bytes) override;
    void reload(const std::string& bytes) override;
    void append(const std::string& bytes) override;
    [[nodiscard]] std::size_t selectionStart() const override;
    [[nodiscard]] std::size_t selectionLength() const override;
    void select(std::size_t start, std::size_t length) override;
    void replaceSelection(const std::string& bytes) override;
    [[nodiscard]] int widthInTwips() const override;
    void onChange(std::function<void()> listener) override;

  private:
    PadEdit& edit_;
    std::function<void()> listener_;
};

}  // namespace velmora
