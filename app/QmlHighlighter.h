#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <array>

class QPalette;

namespace Korvex::Meridane::Designer {

/// Colours QML: keywords, types, properties, ids, texts, numbers and comments.
class QmlHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    enum class Part
    {
        Plain,
        Keyword,
        Type,
        Property,
        Text,
        Number,
        Comment
    };

    explicit QmlHighlighter(QTextDocument* document);

    /// Chooses colours that can be read on the ground of \a palette.
    void setPalette(const QPalette& palette);
    /// The colour of a part; each has a contrast above 4.5 on the ground that it is for.
    [[nodiscard]] static QColor color(Part part, bool dark);

protected:
    void highlightBlock(const QString& text) override;

private:
    /// Colours the name that begins at \a from, and gives its end.
    qsizetype highlightName(const QString& text, qsizetype from);
    void paint(qsizetype from, qsizetype to, Part part);

    static constexpr int PartCount = 7;
    std::array<QTextCharFormat, PartCount> m_formats;
};

} // namespace Korvex::Meridane::Designer
