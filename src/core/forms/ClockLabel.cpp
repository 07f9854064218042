#include "core/forms/ClockLabel.h"

#include <QAction>

#include "platform/controls/Type.h"
#include "platform/qt/QtText.h"

namespace velmora {

ClockLabel::ClockLabel(const CodePage& codePage, QAction& tick, QWidget* parent)
    : QLabel(parent), codePage_(codePage), tick_(tick) {
    setObjectName(QStringLiteral("Label8"));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setType(*this, 14.25, QFont::DemiBold);
    ensurePolished();
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("12:00 PM")));
}

void ClockLabel::setTwentyFourHourTick(bool ticked) {
    tick_.setChecked(ticked);
}

bool ClockLabel::twentyFourHourTick() const {
    return tick_.isChecked();
}

void ClockLabel::setClockText(const std::string& text) {
    setText(toQt(text, codePage_));
}

std::string ClockLabel::clockText() const {
    return fromQt(text(), codePage_);
}

}  // namespace velmora
