#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QColor>

class QSettings;

namespace Korvex::Meridane::Designer {
/** The colours that were picked last, the latest first, without repetition. */
class MERIDANE_CORE_EXPORT RecentColors : public QObject
{
    Q_OBJECT

public:
    /** How many colours are kept; the oldest goes first. */
    static constexpr int capacity = 16;

    explicit RecentColors(QObject* parent = nullptr);

    /** The list that all colour fields of the program share. It lives as long as the program. */
    [[nodiscard]] static RecentColors& shared();

    [[nodiscard]] const QList<QColor>& colors() const { return m_colors; }

    /** Puts @p color to the front; an invalid one is ignored. */
    void add(const QColor& color);

    /** Replaces the list by what @p settings hold under "recentColors"; entries that are no colours are skipped. */
    void load(const QSettings& settings);
    void save(QSettings& settings) const;

Q_SIGNALS:
    void changed();

private:
    QList<QColor> m_colors;
};
} // namespace Korvex::Meridane::Designer
