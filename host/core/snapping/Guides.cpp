#include "host/core/snapping/Guides.h"

#include "host/core/values/ValueConversion.h"

#include <QStringList>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

QString separator()
{
    return QStringLiteral(", ");
}

QString textOf(const Guide& guide)
{
    return (guide.orientation == Qt::Vertical ? QLatin1String("x ") : QLatin1String("y "))
           + ValueConversion::toString(guide.position);
}

/// The guide that \a text names, or nothing.
std::optional<Guide> guideOf(const QString& text)
{
    if (!text.startsWith(QLatin1String("x ")) && !text.startsWith(QLatin1String("y ")))
        return std::nullopt;
    bool ok = false;
    const Guide guide{text.startsWith(QLatin1Char('x')) ? Qt::Vertical : Qt::Horizontal,
                      ValueConversion::toReal(text.mid(2), &ok)};
    return ok && std::isfinite(guide.position) ? std::optional<Guide>(guide) : std::nullopt;
}

} // namespace

Guides Guides::fromText(const QString& text)
{
    Guides guides;
    if (text.isEmpty())
        return guides;
    const QStringList parts = text.split(separator());
    for (const QString& part : parts)
        guides.m_entries.append({guideOf(part), part});
    return guides;
}

QString Guides::toText() const
{
    QStringList parts;
    for (const Entry& entry : m_entries)
        parts.append(entry.text);
    return parts.join(separator());
}

QList<Guide> Guides::list() const
{
    QList<Guide> guides;
    for (const Entry& entry : m_entries) {
        if (entry.guide)
            guides.append(*entry.guide);
    }
    return guides;
}

bool Guides::isEmpty() const
{
    return list().isEmpty();
}

QList<QString> Guides::unreadable() const
{
    QList<QString> texts;
    for (const Entry& entry : m_entries) {
        if (!entry.guide)
            texts.append(entry.text);
    }
    return texts;
}

void Guides::append(const Guide& guide)
{
    m_entries.append({guide, textOf(guide)});
}

void Guides::replace(qsizetype index, const Guide& guide)
{
    m_entries[entryOf(index)] = {guide, textOf(guide)};
}

void Guides::remove(qsizetype index)
{
    m_entries.removeAt(entryOf(index));
}

void Guides::clear()
{
    m_entries.removeIf([](const Entry& entry) { return entry.guide.has_value(); });
}

/// Which entry the guide at \a index is.
qsizetype Guides::entryOf(qsizetype index) const
{
    qsizetype entry = 0;
    while (!m_entries.at(entry).guide || index-- > 0)
        ++entry;
    return entry;
}

} // namespace Korvex::Meridane::Designer
