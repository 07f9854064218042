#include "platform/qt/Theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QWidget>
#include <array>

#include "platform/qt/DeskStyle.h"

namespace velmora {
namespace {

struct NamedToken {
    const char* name;
    QColor Theme::*colour;
};

constexpr std::array<NamedToken, 31> kTokens{{
    {"canvas", &Theme::canvas},
    {"chrome", &Theme::chrome},
    {"surface", &Theme::surface},
    {"alt", &Theme::alt},
    {"line", &Theme::line},
    {"edge", &Theme::edge},
    {"line2", &Theme::line2},
    {"ink", &Theme::ink},
    {"ink2", &Theme::ink2},
    {"dis", &Theme::dis},
    {"accent", &Theme::accent},
    {"accentfill", &Theme::accentfill},
    {"onaccent", &Theme::onaccent},
    {"tint", &Theme::tint},
    {"tint2", &Theme::tint2},
    {"hover", &Theme::hover},
    {"press", &Theme::press},
    {"amber", &Theme::amber},
    {"onamber", &Theme::onamber},
    {"wtab", &Theme::wtab},
    {"wbook", &Theme::wbook},
    {"paper", &Theme::paper},
    {"ambertint", &Theme::ambertint},
    {"amberink", &Theme::amberink},
    {"danger", &Theme::danger},
    {"dangertint", &Theme::dangertint},
    {"go", &Theme::go},
    {"onGo", &Theme::onGo},
    {"event", &Theme::event},
    {"tip", &Theme::tip},
    {"ontip", &Theme::ontip},
}};

QString resourceText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The theme of the platform's palette, unless VELMORA_THEME in the environment names the other.
const Theme& wantedTheme() {
    const QString named = qEnvironmentVariable("VELMORA_THEME");
    if (named == QLatin1String("dark"))
        return Theme::dark();
    if (named == QLatin1String("light"))
        return Theme::light();
    return Theme::of(QApplication::palette());
}

}  // namespace

const Theme& Theme::light() {
    static const Theme theme{
        .canvas = 0xEFEDE8,
        .chrome = 0xE6E3DC,
        .surface = 0xFFFFFF,
        .alt = 0xF8F7F3,
        .line = 0xDBD7CE,
        .edge = 0xBDB6A7,
        .line2 = 0x8A8474,
        .ink = 0x22262B,
        .ink2 = 0x565C64,
        .dis = 0x6E747B,
        .accent = 0x2B5BB8,
        .accentfill = 0x2B5BB8,
        .onaccent = 0xFFFFFF,
        .tint = 0xE4ECFA,
        .tint2 = 0xCFDDF5,
        .hover = 0xDEDACF,
        .press = 0xD0CBBE,
        .amber = 0xF3C449,
        .onamber = 0x22262B,
        .wtab = 0xDBE1E9,
        .wbook = 0x8C99AB,
        .paper = 0xF7F5EF,
        .ambertint = 0xFBF0CF,
        .amberink = 0x6B4A00,
        .danger = 0xB3261E,
        .dangertint = 0xFBE6E3,
        .go = 0x1B7444,
        .onGo = 0xFFFFFF,
        .event = 0xFF0000,
        .tip = 0x33383F,
        .ontip = 0xFFFFFF,
    };
    return theme;
}

const Theme& Theme::dark() {
    static const Theme theme{
        .canvas = 0x1D2126,
        .chrome = 0x24292F,
        .surface = 0x12161A,
        .alt = 0x171B20,
        .line = 0x30363D,
        .edge = 0x47505A,
        .line2 = 0x69727D,
        .ink = 0xE6E8EA,
        .ink2 = 0xA9B0B8,
        .dis = 0x7B838C,
        .accent = 0x8DB4FF,
        .accentfill = 0x3D6CC9,
        .onaccent = 0xFFFFFF,
        .tint = 0x1C2B45,
        .tint2 = 0x2A4068,
        .hover = 0x30363E,
        .press = 0x3A424B,
        .amber = 0xE3B341,
        .onamber = 0x1A1508,
        .wtab = 0x3B4552,
        .wbook = 0x8593A6,
        .paper = 0x3A3F46,
        .ambertint = 0x3A3016,
        .amberink = 0xF2D58A,
        .danger = 0xFF8A80,
        .dangertint = 0x43211F,
        .go = 0x267C4E,
        .onGo = 0xFFFFFF,
        .event = 0xFF0000,
        .tip = 0xE6E8EA,
        .ontip = 0x12161A,
    };
    return theme;
}

const Theme& Theme::of(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
                   palette.color(QPalette::WindowText).lightness()
               ? dark()
               : light();
}

const Theme& Theme::of(const QWidget& widget) {
    return of(widget.palette());
}

QPalette Theme::toPalette() const {
    QPalette palette(chrome, canvas);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, surface);
    palette.setColor(QPalette::AlternateBase, alt);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Button, chrome);
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(QPalette::PlaceholderText, ink2);
    palette.setColor(QPalette::Highlight, accentfill);
    palette.setColor(QPalette::HighlightedText, onaccent);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::ToolTipBase, tip);
    palette.setColor(QPalette::ToolTipText, ontip);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, dis);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, hover);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, ink2);
    return palette;
}

QString Theme::fill(QString styleSheet) const {
    for (const NamedToken& token : kTokens)
        styleSheet.replace(QLatin1Char('{') + QLatin1String(token.name) + QLatin1Char('}'),
                           (this->*token.colour).name());
    return styleSheet;
}

void applyLook() {
    const Theme& theme = wantedTheme();
    QApplication::setStyle(new DeskStyle);
    QFont font;
    font.setFamilies(
        {QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(9.75);
    QApplication::setFont(font);
    QApplication::setPalette(theme.toPalette());
}

void applyStyleSheet(QApplication& application) {
    const Theme& theme = Theme::of(QApplication::palette());
    application.setStyleSheet(theme.fill(resourceText(QStringLiteral(":/look.qss"))));
}

void applyTheme(QApplication& application) {
    applyLook();
    applyStyleSheet(application);
}

}  // namespace velmora
