#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Korvex::Meridane::Architecture {

/** One line `#include …` of a source. */
struct Include
{
    QString target; ///< What stands between the quotes or brackets.
    bool quoted = false; ///< In quotes, not in angle brackets.
    int line = 0; ///< From 1.
};

/** A text in quotes of a source. */
struct Literal
{
    QString text; ///< Without quotes, escapes as written.
    bool localised = false; ///< Passed to a LocalizationHelper function: a text for the user, not a name.
    int line = 0; ///< From 1.
};

/** What the rules look at in one C++ source or header: its includes and string literals, comments left out. */
class SourceFile
{
public:
    /** @p path is relative to the root of the repository, with `/`; @p text the file's whole text. */
    SourceFile(const QString& path, const QString& text);

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] bool isHeader() const { return m_path.endsWith(QLatin1String(".h")); }
    [[nodiscard]] const QVector<Include>& includes() const { return m_includes; }
    [[nodiscard]] const QVector<Literal>& literals() const { return m_literals; }
    /** The first line that is neither blank nor comment is `#pragma once`. */
    [[nodiscard]] bool startsWithPragmaOnce() const { return m_startsWithPragmaOnce; }

    /** @p text with every comment replaced by blanks; line breaks and string literals stay. */
    [[nodiscard]] static QString withoutComments(const QString& text);

private:
    QString m_path;
    QVector<Include> m_includes;
    QVector<Literal> m_literals;
    bool m_startsWithPragmaOnce = false;
};

} // namespace Korvex::Meridane::Architecture
