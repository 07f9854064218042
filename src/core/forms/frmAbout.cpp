#include "core/forms/frmAbout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/ProductVersion.h"
#include "platform/Messages.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/Type.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kIconSize = 64;
constexpr QSize kFormSize(400, 0);  // as high as its parts

QLabel* makeText(const char* name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

void setLink(QLabel& label, const QString& caption, bool enabled) {
    label.setEnabled(enabled);
    label.setTextInteractionFlags(enabled
                                      ? Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard
                                      : Qt::NoTextInteraction);
    label.setTextFormat(enabled ? Qt::RichText : Qt::PlainText);
    label.setText(enabled ? QStringLiteral("<a href=\"#\">%1</a>").arg(caption) : caption);
    label.setAccessibleName(caption);
}

}  // namespace

frmAbout::frmAbout(QWidget* parent)
    : Dialog("frmAbout", tr("About Velmora"), parent),
      Label1(makeText("Label1", QString::fromLatin1(kApplicationTitle), this)),
      Label2(makeText("Label2", tr("Version %1").arg(QString::fromLatin1(productVersion())), this)),
      Label3(makeText("Label3", QString(), this)),
      Label4(makeText("Label4", QString(), this)),
      Command1(makeDialogButton("Command1", "Close", this)) {
    setWindowModality(Qt::WindowModal);
    setType(*Label1, 13.5, QFont::DemiBold);
    setLinksEnabled(true);

    auto* picture = makeText("Image1", QString(), this);
    picture->setPixmap(applicationIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    auto* licence = makeText(
        "Label5", tr("Free software under the MIT license. It uses Qt (LGPL) and SQLite."), this);
    licence->setProperty("role", QStringLiteral("hint"));
    licence->setWordWrap(true);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(Label1);
    texts->addWidget(Label2);
    texts->addSpacing(12);
    texts->addWidget(Label3, 0, Qt::AlignLeft);
    texts->addWidget(Label4, 0, Qt::AlignLeft);
    texts->addSpacing(12);
    texts->addWidget(licence);
    auto* body = new QHBoxLayout;
    body->setSpacing(20);
    body->addWidget(picture, 0, Qt::AlignTop);
    body->addLayout(texts, 1);
    layOut(body, {.right = {Command1}, .primary = Command1}, {.first = kFormSize});

    connect(Label3, &QLabel::linkActivated, this, &frmAbout::webChosen);
    connect(Label4, &QLabel::linkActivated, this, &frmAbout::mailChosen);
    connect(Command1, &QPushButton::clicked, this, &QDialog::close);
}

void frmAbout::setLinksEnabled(bool enabled) {
    setLink(*Label3, tr("Visit Velmora's home page"), enabled);
    setLink(*Label4, tr("Write to the makers of Velmora"), enabled);
}

void frmAbout::present() {
    Dialog::present();
    Command1->setFocus();
}

}  // namespace velmora
