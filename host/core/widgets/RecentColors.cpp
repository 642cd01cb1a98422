#include "host/core/widgets/RecentColors.h"

#include "host/core/values/ValueConversion.h"

#include <QtCore/QSettings>
#include <QtCore/QStringList>

namespace Korvex::Meridane::Designer {
namespace {
QString settingsKey()
{
    return QStringLiteral("recentColors");
}
} // namespace

RecentColors::RecentColors(QObject* parent)
    : QObject(parent)
{}

RecentColors& RecentColors::shared()
{
    static RecentColors colors;
    return colors;
}

void RecentColors::add(const QColor& color)
{
    if (!color.isValid() || (!m_colors.isEmpty() && m_colors.first() == color)) {
        return;
    }
    m_colors.removeAll(color);
    m_colors.prepend(color);
    if (m_colors.size() > capacity) {
        m_colors.removeLast();
    }
    Q_EMIT changed();
}

void RecentColors::load(const QSettings& settings)
{
    m_colors.clear();
    const QStringList texts = settings.value(settingsKey()).toStringList();
    for (const QString& text : texts) {
        bool ok = false;
        const QColor color = ValueConversion::toColor(text, &ok);
        if (ok && !m_colors.contains(color) && m_colors.size() < capacity) {
            m_colors.append(color);
        }
    }
    Q_EMIT changed();
}

void RecentColors::save(QSettings& settings) const
{
    QStringList texts;
    for (const QColor& color : m_colors) {
        texts.append(ValueConversion::toString(color));
    }
    settings.setValue(settingsKey(), texts);
}
} // namespace Korvex::Meridane::Designer
