#include "core/forms/PreferenceControls.h"

#include <QAbstractSlider>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <limits>
#include <stdexcept>

#include "platform/qt/QtText.h"

namespace velmora {

template <typename Control>
Control& PreferenceControls::control(const PreferenceRow& row, std::size_t option) const {
    const std::string_view name = row.controls.at(option);
    auto* found = form_.findChild<Control*>(
        QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
    if (!found)
        throw std::logic_error("no control " + std::string(name));
    return *found;
}

PreferenceControls::PreferenceControls(const QWidget& form, const CodePage& codePage)
    : form_(form), codePage_(codePage) {
    // What is stored may be of any length, and stays whole.
    forEachBox([](QLineEdit& box) { box.setMaxLength(std::numeric_limits<int>::max()); });
    for (const PreferenceRow& row : preferenceRows())
        if (std::holds_alternative<NumberKey>(row.key)) {
            const PreferenceRange range = rangeOf(row);
            control<QAbstractSlider>(row).setRange(range.least, range.most);
        }
}

void PreferenceControls::show(const PreferenceValues& values) {
    const auto rows = preferenceRows();
    for (std::size_t i = 0; i < rows.size(); ++i)
        show(rows[i], values.at(i));
}

void PreferenceControls::show(const PreferenceRow& row, const PreferenceValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        control<QLineEdit>(row).setText(toQt(*text, codePage_));
        control<QLineEdit>(row).home(false);  // a long path shows its beginning
    } else if (const bool* on = std::get_if<bool>(&value)) {
        control<QCheckBox>(row).setChecked(*on);
    } else if (const int* number = std::get_if<int>(&value)) {
        control<QAbstractSlider>(row).setValue(*number);
    } else {
        choose(row, std::get<std::optional<std::size_t>>(value));
    }
}

void PreferenceControls::choose(const PreferenceRow& row,
                                const std::optional<std::size_t>& option) {
    QButtonGroup* group = control<QRadioButton>(row).group();
    group->setExclusive(false);
    for (QAbstractButton* button : group->buttons())
        button->setChecked(false);
    group->setExclusive(true);
    if (option)
        control<QRadioButton>(row, *option).setChecked(true);
}

PreferenceValues PreferenceControls::values() const {
    PreferenceValues values;
    for (const PreferenceRow& row : preferenceRows())
        values.push_back(value(row));
    return values;
}

PreferenceValue PreferenceControls::value(const PreferenceRow& row) const {
    if (std::holds_alternative<TextKey>(row.key))
        return fromQt(control<QLineEdit>(row).text(), codePage_);
    if (std::holds_alternative<SwitchKey>(row.key))
        return control<QCheckBox>(row).isChecked();
    if (std::holds_alternative<NumberKey>(row.key))
        return control<QAbstractSlider>(row).value();
    return chosen(row);
}

std::optional<std::size_t> PreferenceControls::chosen(const PreferenceRow& row) const {
    const std::size_t options = std::get<ChoiceKey>(row.key).texts.size();
    for (std::size_t option = 0; option < options; ++option)
        if (control<QRadioButton>(row, option).isChecked())
            return option;
    return std::nullopt;
}

void PreferenceControls::forEachBox(const std::function<void(QLineEdit& box)>& work) const {
    for (const PreferenceRow& row : preferenceRows())
        if (std::holds_alternative<TextKey>(row.key))
            work(control<QLineEdit>(row));
}

}  // namespace velmora
