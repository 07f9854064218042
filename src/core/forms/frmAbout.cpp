#include "core/forms/frmAbout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/ProductVersion.h"
#include "platform/Messages.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/Type.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kMargin = 16;
constexpr int kIconSize = 64;
constexpr int kLeastWidth = 400;

QLabel* makeLabel(const char* name, const QString& text, QWidget* parent) {
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
    : QDialog(parent),
      Label1(makeLabel("Label1", QString::fromLatin1(kApplicationTitle), this)),
      Label2(
          makeLabel("Label2", tr("Version %1").arg(QString::fromLatin1(productVersion())), this)),
      Label3(makeLabel("Label3", QString(), this)),
      Label4(makeLabel("Label4", QString(), this)),
      Command1(new QPushButton(tr("Close"), this)) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Velmora"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::WindowModal);
    setType(*Label1, 13.5, QFont::DemiBold);
    setLinksEnabled(true);
    Command1->setObjectName(QStringLiteral("Command1"));
    makePrimary(*Command1);

    auto* picture = makeLabel("Image1", QString(), this);
    picture->setPixmap(applicationIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    auto* licence = makeLabel(
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
    body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    body->setSpacing(20);
    body->addWidget(picture, 0, Qt::AlignTop);
    body->addLayout(texts, 1);
    auto* footer = new DialogFooter(this);
    footer->addRight(Command1);
    layOutDialog(*this, body, footer);
    setMinimumWidth(kLeastWidth);

    connect(Label3, &QLabel::linkActivated, this, &frmAbout::webChosen);
    connect(Label4, &QLabel::linkActivated, this, &frmAbout::mailChosen);
    connect(Command1, &QPushButton::clicked, this, &QDialog::close);
}

void frmAbout::setLinksEnabled(bool enabled) {
    setLink(*Label3, tr("Visit Velmora's home page"), enabled);
    setLink(*Label4, tr("Write to the makers of Velmora"), enabled);
}

void frmAbout::present() {
    show();
    raise();
    activateWindow();
    Command1->setFocus();
}

}  // namespace velmora
