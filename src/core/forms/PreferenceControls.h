#pragma once

#include <functional>

#include "core/SettingsTable.h"
#include "platform/CodePage.h"

class QLineEdit;
class QWidget;

namespace velmora {

// The controls of a form that edit settings, found by the names in core/SettingsTable.h.
class PreferenceControls {
  public:
    // Both must outlive this object; the form has all the controls. Their ranges are set here.
    PreferenceControls(const QWidget& form, const CodePage& codePage);

    void show(const PreferenceValues& values);
    [[nodiscard]] PreferenceValues values() const;

    // Calls `work` with each box for a text.
    void forEachBox(const std::function<void(QLineEdit& box)>& work) const;

  private:
    void show(const PreferenceRow& row, const PreferenceValue& value);
    [[nodiscard]] PreferenceValue value(const PreferenceRow& row) const;
    void choose(const PreferenceRow& row, const std::optional<std::size_t>& option);
    [[nodiscard]] std::optional<std::size_t> chosen(const PreferenceRow& row) const;

    template <typename Control>
    [[nodiscard]] Control& control(const PreferenceRow& row, std::size_t option = 0) const;

    const QWidget& form_;
    const CodePage& codePage_;
};

}  // namespace velmora
