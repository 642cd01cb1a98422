#include "host/core/values/GroupText.h"

namespace Korvex::Meridane::Designer {
namespace {
bool isKeyCharacter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_';
}

bool needsEscape(QChar c)
{
    return c == u';' || c == u':' || c == u'\\';
}
} // namespace

GroupReader::GroupReader(QStringView text)
    : m_text(text)
{}

bool GroupReader::next()
{
    if (m_fault || m_position == m_text.size()) {
        return false;
    }
    if (!readPair()) {
        m_fault = true;
        return false;
    }
    ++m_pairs;
    return true;
}

bool GroupReader::readPair()
{
    if (m_pairs > 0 && m_text.at(m_position) == u' ') {
        ++m_position;
    }
    const qsizetype start = m_position;
    while (m_position < m_text.size() && isKeyCharacter(m_text.at(m_position))) {
        ++m_position;
    }
    m_key = m_text.sliced(start, m_position - start);
    if (m_key.isEmpty() || m_position == m_text.size() || m_text.at(m_position) != u':') {
        return false;
    }
    ++m_position;
    if (m_position < m_text.size() && m_text.at(m_position) == u' ') {
        ++m_position;
    }
    return readValue();
}

bool GroupReader::readValue()
{
    const qsizetype start = m_position;
    qsizetype copied = start; // up to here the value has gone into m_unescaped
    bool hasEscapes = false;
    m_unescaped.clear();
    for (; m_position < m_text.size(); ++m_position) {
        const QChar c = m_text.at(m_position);
        if (c == u';') {
            m_value = m_text.sliced(start, m_position - start);
            if (hasEscapes) {
                m_unescaped.append(m_text.sliced(copied, m_position - copied));
                m_value = m_unescaped;
            }
            ++m_position;
            return true;
        }
        if (c == u':') {
            return false;
        }
        if (c == u'\\') {
            if (m_position + 1 == m_text.size() || !needsEscape(m_text.at(m_position + 1))) {
                return false;
            }
            hasEscapes = true;
            m_unescaped.append(m_text.sliced(copied, m_position - copied));
            ++m_position;
            copied = m_position;
        }
    }
    return false;
}

void appendPair(QString& text, QStringView key, QStringView value)
{
    if (!text.isEmpty()) {
        text.append(u' ');
    }
    text.append(key);
    text.append(QLatin1String(": "));
    for (const QChar c : value) {
        if (needsEscape(c)) {
            text.append(u'\\');
        }
        text.append(c);
    }
    text.append(u';');
}
} // namespace Korvex::Meridane::Designer
