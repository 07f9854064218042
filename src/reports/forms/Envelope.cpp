#include "reports/forms/Envelope.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/ElidedLabel.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"
#include "reports/forms/EnvelopeSheet.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(776, 506);
constexpr int kPaperMargin = 18;
constexpr int kLineGap = 4;
constexpr int kRowGap = 6;
constexpr int kReturnWidth = 240;
constexpr int kAddressWidth = 300;
constexpr QSize kFontButton(30, 28);
constexpr QSize kStamp(64, 78);
constexpr int kIconSize = 17;

// The boxes in the order in which they are printed; their font buttons are numbered through.
constexpr std::array<const char*, kEnvelopeLines> kBoxNames{"Text1", "Text7",  "Text8", "Text9",
                                                            "Text2", "Text3",  "Text4", "Text5",
                                                            "Text6", "Text10", "Text11"};

QString nameOfLine(std::size_t line) {
    return line < kReturnLines ? QObject::tr("Return address, line %1").arg(line + 1)
                               : QObject::tr("Address, line %1").arg(line - kReturnLines + 1);
}

EnvelopeSheetSize sizeOf(const std::optional<PrintTarget>& target) {
    if (!target)
        return {};
    return {.width = target->width,
            .height = target->height,
            .left = target->left,
            .top = target->top,
            .printableWidth = target->printableWidth,
            .printableHeight = target->printableHeight};
}

}  // namespace

Envelope::Envelope(const Parts& parts, QWidget* parent)
    : Dialog("Envelope", QStringLiteral("Create Envelope"), parent),
      parts_(parts),
      Label1(new QLabel(this)),
      sheet_(new EnvelopeSheet(parts.codePage, this)),
      where_(new ElidedLabel(Qt::ElideRight, this)),
      Command1(makeDialogButton("Command1", "&Barcode Zipcode", this)),
      Command2(makeDialogButton("Command2", "&Cancel", this)),
      Command3(makeDialogButton("Command3", "&Save Return Address as Default", this)),
      Command4(makeDialogButton("Command4", "&Preferences", this)),
      Command5(makeDialogButton("Command5", "Print", this)) {
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setTextFormat(Qt::PlainText);
    Label1->setFont(QFont(QStringLiteral("Times New Roman"), 12));
    sheet_->setObjectName(QStringLiteral("sheet"));
    where_->setObjectName(QStringLiteral("where"));
    makeRows();
    auto* body = new QVBoxLayout;
    body->addWidget(makePaper());
    layOut(body,
           {.left = {Command1, Command3, Command4},
            .right = {Command5, Command2},
            .primary = Command5},
           {.first = kFormSize});
    setTabs();
    connectControls();
    showContent();
}

void Envelope::makeRows() {
    for (std::size_t i = 0; i < kEnvelopeLines; ++i) {
        auto* text = new QLineEdit(this);
        text->setObjectName(QString::fromLatin1(kBoxNames[i]));
        text->setAccessibleName(nameOfLine(i));
        guard(*text, parts_.codePage);
        auto* font = new QToolButton(this);
        font->setObjectName(QStringLiteral("Toolbar%1").arg(i + 1));
        font->setAccessibleName(tr("Font of %1").arg(nameOfLine(i)));
        font->setToolTip(font->accessibleName());
        font->setFixedSize(kFontButton);
        font->setIconSize({kIconSize, kIconSize});
        font->setIcon(symbolIcon(QStringLiteral("FontD"), Theme::of(*this)));
        font->setFocusPolicy(Qt::StrongFocus);
        rows_[i] = {text, font};
    }
}

QWidget* Envelope::makeRow(std::size_t line, int width) {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kRowGap);
    rows_[line].text->setFixedSize(width, kFontButton.height());
    layout->addWidget(rows_[line].text);
    layout->addWidget(rows_[line].font);
    return row;
}

QWidget* Envelope::makePaper() {
    auto* paper = new QFrame(this);
    paper->setProperty("role", "card");
    auto* returnLines = new QVBoxLayout;
    returnLines->setSpacing(kLineGap);
    for (std::size_t i = 0; i < kReturnLines; ++i)
        returnLines->addWidget(makeRow(i, kReturnWidth), 0, Qt::AlignLeft);
    auto* stamp = new QFrame(paper);
    stamp->setObjectName(QStringLiteral("stamp"));
    stamp->setProperty("role", "stamp");
    stamp->setFixedSize(kStamp);
    auto* head = new QHBoxLayout;
    head->addLayout(returnLines);
    head->addStretch();
    head->addWidget(stamp, 0, Qt::AlignTop);

    auto* address = new QVBoxLayout;
    address->setSpacing(kLineGap);
    address->addWidget(Label1);
    for (std::size_t i = kReturnLines; i < kEnvelopeLines; ++i)
        address->addWidget(makeRow(i, kAddressWidth), 0, Qt::AlignLeft);
    auto* picture = new QVBoxLayout;
    picture->setSpacing(kRowGap);
    picture->addWidget(sheet_, 1);
    picture->addWidget(where_);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(kPaperMargin);
    foot->addLayout(picture, 1);
    foot->addLayout(address);

    auto* body = new QVBoxLayout(paper);
    body->setContentsMargins(kPaperMargin, kPaperMargin, kPaperMargin, kPaperMargin);
    body->setSpacing(kLineGap);
    body->addLayout(head);
    body->addSpacing(kRowGap);
    body->addLayout(foot, 1);
    return paper;
}

void Envelope::setTabs() {
    std::vector<QWidget*> stops;
    for (const Row& row : rows_)
        stops.push_back(row.text);
    for (const Row& row : rows_)
        stops.push_back(row.font);
    setTabStops(stops);
}

void Envelope::connectControls() {
    for (std::size_t i = 0; i < kEnvelopeLines; ++i) {
        connect(rows_[i].text, &QLineEdit::textChanged, this, [this, i](const QString& text) {
            parts_.editor.setText(i, fromQt(text, parts_.codePage));
            showPicture();
        });
        connect(rows_[i].font, &QToolButton::clicked, this, [this, i] {
            if (parts_.editor.chooseFont(i))
                showFont(i);
            showPicture();
        });
    }
    connect(this, &Dialog::characterReplaced, this,
            [this] { parts_.status.show(kCharacterReplaced); });
    connect(Command1, &QPushButton::clicked, this, [this] {
        parts_.editor.formatBarcode();
        showContent();
    });
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command3, &QPushButton::clicked, this, [this] { parts_.editor.saveReturnAddress(); });
    connect(Command4, &QPushButton::clicked, this, [this] { emit preferencesWanted(); });
    connect(Command5, &QPushButton::clicked, this, [this] { print(); });
    connect(this, &QDialog::rejected, this, [this] {
        parts_.targets.forget();
        emit unloaded();
    });
}

void Envelope::present() {
    if (!isVisible())
        rows_[kReturnLines].text->setFocus();
    bringToFront();
    try {
        parts_.editor.FillEnvelopeFromEntry();
    } catch (...) {
        showContent();
        throw;
    }
    showContent();
}

void Envelope::showEvent(QShowEvent* event) {
    Dialog::showEvent(event);
    askWhere();
    showPicture();
}

void Envelope::askWhere() {
    where_->setText(tr("To: ..."));
    parts_.targets.ask(PageOrientation::Landscape,
                       [this](const std::optional<PrintTarget>& target) {
                           target_ = target;
                           targetLine_ = target ? toQt(target->line(), parts_.codePage)
                                                : tr("The print system does not answer.");
                           showPicture();
                       });
}

void Envelope::showContent() {
    const EnvelopeContent content = parts_.editor.content();
    for (std::size_t i = 0; i < kEnvelopeLines; ++i) {
        const QString text = toQt(content.lines[i].text, parts_.codePage);
        if (rows_[i].text->text() != text)
            rows_[i].text->setText(text);
        if (!rows_[i].text->hasFocus())
            rows_[i].text->home(false);  // a long line shows its beginning
        showFont(i);
    }
    Label1->setText(toQt(content.EnvelopeBarcode, parts_.codePage));
    showPicture();
}

// The box shows its text as it will be printed; black is the ink of the theme.
void Envelope::showFont(std::size_t line) {
    const EnvelopeLine& shown = parts_.editor.content().lines[line];
    QLineEdit* box = rows_[line].text;
    QString family = toQt(shown.fontName, parts_.codePage);
    family.remove(QLatin1Char('"')).remove(QLatin1Char('\\'));
    QString look =
        QStringLiteral("font-family: \"%1\"; font-size: %2pt;").arg(family).arg(shown.fontSize);
    if (shown.colour != 0)
        look +=
            QStringLiteral(" color: %1;")
                .arg(QColor(shown.colour & 255, shown.colour >> 8 & 255, shown.colour >> 16 & 255)
                         .name());
    box->setStyleSheet(look);
}

void Envelope::showPicture() {
    if (!isVisible())
        return;
    const EnvelopeFeed feed = readEnvelopeFeed(parts_.settings);
    const EnvelopeSheetSize size = sizeOf(target_);
    const EnvelopeSketch sketch =
        sketchEnvelope(parts_.editor.content(), feed, parts_.metrics, size);
    sheet_->show(sketch, feed, size);
    if (targetLine_.isEmpty())
        return;
    where_->setText(sketch.fits ? targetLine_ : targetLine_ + tr(": red runs over the edge"));
    QPalette palette = this->palette();
    if (!sketch.fits)
        palette.setColor(QPalette::WindowText, Theme::of(*this).danger);
    where_->setPalette(palette);
    where_->setToolTip(where_->text());
}

void Envelope::print() {
    if (parts_.editor.print() != PrintEnd::Printed)
        return;
    parts_.targets.forget();
    hide();
}

}  // namespace velmora
