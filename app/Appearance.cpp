#include "app/Appearance.h"

#include "app/AppSettings.h"

#include <QApplication>
#include <QToolTip>

namespace Korvex::Meridane::Designer {

namespace {

const QString SchemeKey = QStringLiteral("appearance/scheme");

struct Colors
{
    QRgb window, base, alternate, button, light, text, dim, border, highlight, link, toolTip;
};

QPalette paletteOf(const Colors& c)
{
    QPalette palette(QColor(c.button), QColor(c.window));
    palette.setColor(QPalette::WindowText, QColor(c.text));
    palette.setColor(QPalette::Base, QColor(c.base));
    palette.setColor(QPalette::AlternateBase, QColor(c.alternate));
    palette.setColor(QPalette::Text, QColor(c.text));
    palette.setColor(QPalette::ButtonText, QColor(c.text));
    palette.setColor(QPalette::BrightText, QColor(Qt::white));
    palette.setColor(QPalette::PlaceholderText, QColor(c.dim));
    palette.setColor(QPalette::Highlight, QColor(c.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(Qt::white));
    palette.setColor(QPalette::Link, QColor(c.link));
    palette.setColor(QPalette::LinkVisited, QColor(c.link));
    palette.setColor(QPalette::ToolTipBase, QColor(c.toolTip));
    palette.setColor(QPalette::ToolTipText, QColor(c.text));
    palette.setColor(QPalette::Light, QColor(c.light));
    palette.setColor(QPalette::Midlight, QColor(c.button));
    palette.setColor(QPalette::Mid, QColor(c.border));
    palette.setColor(QPalette::Dark, QColor(c.border).darker(115));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(QPalette::Disabled, role, QColor(c.dim));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(c.border));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(c.dim));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(c.window));
    return palette;
}

} // namespace

Appearance::Scheme Appearance::stored()
{
    const QString name = AppSettings().value(SchemeKey).toString();
    if (name == QLatin1String("light"))
        return Scheme::Light;
    return name == QLatin1String("dark") ? Scheme::Dark : Scheme::Desktop;
}

void Appearance::apply(Scheme scheme)
{
    // An empty palette is the desktop's.
    const QPalette palette = scheme == Scheme::Light  ? lightPalette()
                             : scheme == Scheme::Dark ? darkPalette()
                                                      : QPalette();
    QApplication::setPalette(palette);
    follow();
}

void Appearance::follow()
{
    QToolTip::setPalette(QApplication::palette());
}

void Appearance::choose(Scheme scheme)
{
    const QString name = scheme == Scheme::Light  ? QStringLiteral("light")
                         : scheme == Scheme::Dark ? QStringLiteral("dark")
                                                  : QStringLiteral("desktop");
    AppSettings().setValue(SchemeKey, name);
    apply(scheme);
}

QPalette Appearance::lightPalette()
{
    return paletteOf({.window = 0xfff3f4f6,
                      .base = 0xffffffff,
                      .alternate = 0xfff7f8fa,
                      .button = 0xfffafbfc,
                      .light = 0xffffffff,
                      .text = 0xff1f2733,
                      .dim = 0xff8b93a0,
                      .border = 0xffc3c9d2,
                      .highlight = 0xff2f6fb5,
                      .link = 0xff1f5fa8,
                      .toolTip = 0xffffffff});
}

QPalette Appearance::darkPalette()
{
    return paletteOf({.window = 0xff2b2f36,
                      .base = 0xff212429,
                      .alternate = 0xff262a30,
                      .button = 0xff363b44,
                      .light = 0xff3a404a,
                      .text = 0xffe4e7ec,
                      .dim = 0xff868e9b,
                      .border = 0xff464c57,
                      .highlight = 0xff3a78bd,
                      .link = 0xff7fb4ee,
                      .toolTip = 0xff363b44});
}

bool Appearance::isDark(const QPalette& palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace Korvex::Meridane::Designer
