#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

/// A line to align with; a vertical one stands at an x.
struct Guide
{
    Qt::Orientation orientation = Qt::Vertical;
    double position = 0; ///< pixels of the screen

    bool operator==(const Guide&) const = default;
};

/**
 * The guides of a screen, as its editor mark "guides" holds them: "x 100, y 50.5", in the order in which they were made.
 *
 * Reading and writing are exact inverses: an entry keeps its spelling until it is replaced, and one that names no guide is
 * kept as it stands, so that no edit of the others loses it.
 */
class MERIDANE_CORE_EXPORT Guides
{
public:
    Guides() = default;
    /// Any text can be read.
    [[nodiscard]] static Guides fromText(const QString& text);
    [[nodiscard]] QString toText() const;

    /// In the order of their indices, which replace(), remove() and this list share.
    [[nodiscard]] QList<Guide> list() const;
    [[nodiscard]] bool isEmpty() const;
    /// The entries that name no guide.
    [[nodiscard]] QList<QString> unreadable() const;

    void append(const Guide& guide);
    void replace(qsizetype index, const Guide& guide);
    void remove(qsizetype index);
    /// Removes every guide, and nothing that could not be read.
    void clear();

    bool operator==(const Guides&) const = default;

private:
    struct Entry
    {
        std::optional<Guide> guide;
        QString text; ///< as it was read or is to be written

        bool operator==(const Entry&) const = default;
    };
    [[nodiscard]] qsizetype entryOf(qsizetype index) const;

    QList<Entry> m_entries;
};

} // namespace Korvex::Meridane::Designer
