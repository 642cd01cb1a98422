#pragma once

#include "host/core/CoreExport.h"

#include <QObject>
#include <QSet>
#include <QString>

class QSettings;

namespace Korvex::Meridane::Designer {

/// Which sections of the property sheet are folded, by their keys (see SheetSections).
class MERIDANE_CORE_EXPORT SectionFolds : public QObject
{
    Q_OBJECT

public:
    explicit SectionFolds(QObject* parent = nullptr);
    ~SectionFolds() override;

    /// What all property sheets of the program share. It lives as long as the program.
    [[nodiscard]] static SectionFolds& shared();

    [[nodiscard]] bool isFolded(const QString& section) const { return m_folded.contains(section); }
    void setFolded(const QString& section, bool folded);

    /// Replaces all by what \a settings hold under "foldedSections".
    void load(const QSettings& settings);
    void save(QSettings& settings) const;

Q_SIGNALS:
    void changed();

private:
    QSet<QString> m_folded;
};

} // namespace Korvex::Meridane::Designer
