#pragma once

#include <QString>
#include <QVector>

namespace Korvex::Meridane::Translations {

/** A text for the user, as a source names it. */
struct SourceText
{
    QString context; ///< The translation context: "Core" or "VisualDesigner".
    QString text; ///< English, escapes resolved; of a counted text the plural.
    bool counted = false; ///< Has `%n`, and a form for each of a language's numbers.
    int line = 0; ///< From 1.
};

/** A text that cannot be taken from the source, because it comes into being only when the program runs. */
struct HiddenText
{
    QString call; ///< What was written there, shortened.
    int line = 0; ///< From 1.
};

/**
 * The texts for the user in one C++ source: the literals that are handed to `coreText`, `elementText`, `coreString` and
 * `visualDesignerString`, by way of a function of the same source, too, and those that are marked with
 * `QT_TRANSLATE_NOOP` to be handed on later.
 *
 * Qt's own extractor wants to see the context beside every text; our functions know theirs.
 */
class SourceTexts
{
public:
    /** @p code is the whole source, comments included. */
    explicit SourceTexts(const QString& code);

    [[nodiscard]] const QVector<SourceText>& texts() const { return m_texts; }
    /** Calls whose text is put together from parts, or is no literal although nothing in the source is marked. */
    [[nodiscard]] const QVector<HiddenText>& hidden() const { return m_hidden; }

    /** Whether the texts of the file @p path, relative to the repository and with `/`, are shown in the window. */
    [[nodiscard]] static bool isShownInWindow(const QString& path);
    /** The sources below @p root whose texts are shown in the window, relative to it, sorted. */
    [[nodiscard]] static QStringList files(const QString& root);

private:
    QVector<SourceText> m_texts;
    QVector<HiddenText> m_hidden;
};

} // namespace Korvex::Meridane::Translations
