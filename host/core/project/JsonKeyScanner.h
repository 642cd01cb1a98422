#pragma once

#include "host/core/CoreExport.h"

#include <QByteArray>

#include <deque>
#include <optional>
#include <vector>

namespace Korvex::Meridane::Designer {

/**
 * Finds keys that stand twice in one JSON object. JSON parsers take the last of the two values and drop the other
 * silently, which after a merge is somebody's work.
 *
 * The text must be well-formed JSON; the scanner looks at keys only. Linear in the text, but for sorting the keys of
 * each object.
 */
class MERIDANE_CORE_EXPORT JsonKeyScanner
{
public:
    struct Duplicate
    {
        QByteArray key; ///< unescaped, UTF-8
        int firstLine = 0; ///< from 1
        int secondLine = 0;
    };

    explicit JsonKeyScanner(const QByteArray& json);

    /// The duplicate whose second key comes first in the text.
    [[nodiscard]] std::optional<Duplicate> firstDuplicate();

private:
    struct Key
    {
        QByteArrayView text;
        int line = 0;
    };
    struct Level
    {
        bool isObject = false;
        bool expectsKey = false;
        std::size_t firstKey = 0; // index into m_keys
    };

    void scanString();
    void closeLevel();
    [[nodiscard]] QByteArrayView unescaped(QByteArrayView raw);

    const QByteArray m_json;
    qsizetype m_position = 0;
    int m_line = 1;
    std::vector<Level> m_levels;
    std::vector<Key> m_keys; // of all open objects, the innermost last
    std::deque<QByteArray> m_unescaped; // backs the keys that hold escapes
    std::optional<Duplicate> m_found;
};

} // namespace Korvex::Meridane::Designer
