#include "docpad/forms/FontDialog.h"

#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/BoxOwner.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kSize(460, 420);
constexpr int kSwatch = 16;
constexpr int kBoxHeight = 30;

// Red + 256 green + 65536 blue; negative is no colour.
std::optional<QColor> colourOf(int number) {
    if (number < 0)
        return std::nullopt;
    return QColor(number & 255, number >> 8 & 255, number >> 16 & 255);
}

int numberOf(const std::optional<QColor>& colour) {
    return colour ? colour->red() + 256 * colour->green() + 65536 * colour->blue() : -1;
}

}  // namespace

FontDialog::FontDialog(const ControlFont& now, double smallest, double largest,
                       const CodePage& codePage, QWidget* parent)
    : Dialog("FontDialog", tr("Font"), parent),
      codePage_(codePage),
      families_(new EntryList(codePage, nullptr, this)),
      size_(new QDoubleSpinBox(this)),
      colourButton_(makeDialogButton("colour", "C&olor...", this)),
      ownColourButton_(makeDialogButton("ownColour", "&Default Color", this)),
      sample_(new QLabel(tr("AaBbYyZz 0123456789"), this)),
      ok_(makeDialogButton("ok", "Ok", this)),
      cancel_(makeDialogButton("cancel", "Cancel", this)) {
    families_->setObjectName(QStringLiteral("families"));
    families_->setAccessibleName(tr("Font"));  // assistive tools do not tell a list by its label
    families_->setDragEnabled(false);
    size_->setObjectName(QStringLiteral("size"));
    size_->setRange(smallest, largest);
    size_->setValue(now.size);
    size_->setMinimumHeight(kBoxHeight);
    sample_->setObjectName(QStringLiteral("sample"));
    sample_->setAlignment(Qt::AlignCenter);
    fillFamilies(toQt(now.name, codePage_));
    arrange();
    connect(families_, &EntryList::currentLineChanged, this, &FontDialog::showSample);
    connect(size_, &QDoubleSpinBox::valueChanged, this, &FontDialog::showSample);
    connect(colourButton_, &QPushButton::clicked, this, &FontDialog::chooseColour);
    connect(ownColourButton_, &QPushButton::clicked, this, [this] { setColour(std::nullopt); });
    connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    setColour(colourOf(now.colour));
}

void FontDialog::fillFamilies(const QString& present) {
    // A name that the code page can not hold could not be kept.
    std::vector<std::string> lines;
    std::string chosen;
    for (const QString& family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family) || keepToCodePage(family, codePage_) != family)
            continue;
        lines.push_back(fromQt(family, codePage_));
        if (chosen.empty() && family.compare(present, Qt::CaseInsensitive) == 0)
            chosen = lines.back();
    }
    families_->setLines(std::move(lines));
    if (!chosen.empty())
        families_->selectLine(chosen);
}

void FontDialog::arrange() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    grid->addWidget(makeLabel(tr("&Font"), families_), 0, 0);
    grid->addWidget(makeListFrame(families_, this), 1, 0, 5, 1);
    grid->addWidget(makeLabel(tr("&Size"), size_), 0, 1);
    grid->addWidget(size_, 1, 1);
    grid->addWidget(colourButton_, 2, 1);
    grid->addWidget(ownColourButton_, 3, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 1);
    grid->addWidget(sample_, 6, 0, 1, 2);
    grid->setRowMinimumHeight(6, 56);
    layOut(grid, {.right = {ok_, cancel_}, .primary = ok_}, {.first = kSize});
    setTabStops({families_, size_, colourButton_, ownColourButton_});
}

ControlFont FontDialog::chosen() const {
    return {.name = families_->selectedLine(), .size = size_->value(), .colour = numberOf(colour_)};
}

void FontDialog::setColour(const std::optional<QColor>& colour) {
    colour_ = colour;
    ownColourButton_->setEnabled(colour.has_value());
    showSample();
}

void FontDialog::chooseColour() {
    const QColor now = colour_.value_or(palette().color(QPalette::Text));
    const QColor chosen = QColorDialog::getColor(now, this);
    if (chosen.isValid())
        setColour(chosen);
}

void FontDialog::showSample() {
    QFont font = sample_->font();
    if (families_->hasSelection())
        font.setFamilies({toQt(families_->selectedLine(), codePage_)});
    font.setPointSizeF(size_->value());
    sample_->setFont(font);
    QPalette colours = palette();
    const QColor ink = colour_.value_or(palette().color(QPalette::Text));
    colours.setColor(QPalette::WindowText, ink);
    sample_->setPalette(colours);
    QPixmap swatch(kSwatch, kSwatch);
    swatch.fill(ink);
    colourButton_->setIcon(swatch);
}

std::optional<ControlFont> QtFontQuestion::choose(const ControlFont& now, double smallest,
                                                  double largest) {
    FontDialog dialog(now, smallest, largest, codePage_, boxOwner());
    if (runOverOwner(dialog) != QDialog::Accepted)
        return std::nullopt;
    ControlFont chosen = dialog.chosen();
    // A font that is not installed is not in the list, and stays as it is unless another is chosen.
    if (chosen.name.empty())
        chosen.name = now.name;
    return chosen;
}

}  // namespace velmora
