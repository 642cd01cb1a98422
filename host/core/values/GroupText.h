#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

/** The text form of grouped values, `key: value; key: value;`, read and written pair by pair. */
namespace Korvex::Meridane::Designer {
/**
 * Walks over the pairs of a group. The text must outlive the reader.
 *
 * A key is an identifier of ASCII letters, digits and underscores. One blank after the colon and one between two pairs
 * are part of the form and may be missing; every other blank belongs to the value. In a value `;`, `:` and `\` are
 * written behind a `\`, and a `\` stands before nothing else.
 */
class GroupReader
{
public:
    explicit GroupReader(QStringView text);

    /** Reads the next pair. False at the end of the text and at the first fault; atEnd() tells which. */
    [[nodiscard]] bool next();

    /** The pair that next() read. The views stay valid until the next call. */
    [[nodiscard]] QStringView key() const { return m_key; }
    [[nodiscard]] QStringView value() const { return m_value; }

    /** True when the whole text has been read as at least one pair, without a fault. */
    [[nodiscard]] bool atEnd() const { return m_position == m_text.size() && m_pairs > 0 && !m_fault; }

private:
    [[nodiscard]] bool readPair();
    [[nodiscard]] bool readValue();

    QStringView m_text;
    qsizetype m_position = 0;
    int m_pairs = 0;
    bool m_fault = false;
    QStringView m_key;
    QStringView m_value;
    QString m_unescaped; // backs m_value when the value holds escapes
};

/** Appends `key: value;`, with a blank before it unless @p text is empty. @p key is an identifier. */
void appendPair(QString& text, QStringView key, QStringView value);
} // namespace Korvex::Meridane::Designer
