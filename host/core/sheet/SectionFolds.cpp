#include "host/core/sheet/SectionFolds.h"

#include <QSettings>
#include <QStringList>

namespace Korvex::Meridane::Designer {

namespace {

QString settingsKey()
{
    return QStringLiteral("foldedSections");
}

} // namespace

SectionFolds::SectionFolds(QObject* parent)
    : QObject(parent)
{}

SectionFolds::~SectionFolds() = default;

SectionFolds& SectionFolds::shared()
{
    static SectionFolds folds;
    return folds;
}

void SectionFolds::setFolded(const QString& section, bool folded)
{
    if (isFolded(section) == folded)
        return;
    if (folded)
        m_folded.insert(section);
    else
        m_folded.remove(section);
    Q_EMIT changed();
}

void SectionFolds::load(const QSettings& settings)
{
    const QStringList sections = settings.value(settingsKey()).toStringList();
    m_folded = QSet<QString>(sections.begin(), sections.end());
    Q_EMIT changed();
}

void SectionFolds::save(QSettings& settings) const
{
    QStringList sections(m_folded.begin(), m_folded.end());
    sections.sort();
    settings.setValue(settingsKey(), sections);
}

} // namespace Korvex::Meridane::Designer
