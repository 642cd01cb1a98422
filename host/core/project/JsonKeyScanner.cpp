#include "host/core/project/JsonKeyScanner.h"

#include <QChar>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// Appends a code point as UTF-8; a lone surrogate as the three bytes that its number would take, so that different
/// ones stay different.
void appendUtf8(QByteArray& text, uint code)
{
    const auto continuation = [&text, code](int shift) { text += char(0x80 | ((code >> shift) & 0x3f)); };
    if (code < 0x80) {
        text += char(code);
    } else if (code < 0x800) {
        text += char(0xc0 | (code >> 6));
        continuation(0);
    } else if (code < 0x10000) {
        text += char(0xe0 | (code >> 12));
        continuation(6);
        continuation(0);
    } else {
        text += char(0xf0 | (code >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

/// The number of the four hexadecimal digits at \a position; nothing when there are not four.
std::optional<uint> hexadecimal(QByteArrayView text, qsizetype position)
{
    bool ok = false;
    if (position < 0 || position + 4 > text.size())
        return {};
    const uint number = text.sliced(position, 4).toByteArray().toUInt(&ok, 16);
    return ok ? std::optional(number) : std::nullopt;
}

} // namespace

JsonKeyScanner::JsonKeyScanner(const QByteArray& json)
    : m_json(json)
{}

std::optional<JsonKeyScanner::Duplicate> JsonKeyScanner::firstDuplicate()
{
    for (; m_position < m_json.size(); ++m_position) {
        switch (m_json.at(m_position)) {
        case '\n':
            ++m_line;
            break;
        case '{':
            m_levels.push_back({true, true, m_keys.size()});
            break;
        case '[':
            m_levels.push_back({false, false, m_keys.size()});
            break;
        case '}':
        case ']':
            closeLevel();
            break;
        case ',':
            if (!m_levels.empty())
                m_levels.back().expectsKey = m_levels.back().isObject;
            break;
        case '"':
            scanString();
            break;
        default:
            break;
        }
    }
    return m_found;
}

/// From the opening quote to the closing one, on which the position stays.
void JsonKeyScanner::scanString()
{
    const int line = m_line;
    const qsizetype start = ++m_position;
    bool escapes = false;
    for (; m_position < m_json.size() && m_json.at(m_position) != '"'; ++m_position) {
        if (m_json.at(m_position) == '\\') {
            escapes = true;
            ++m_position;
        }
        if (m_position < m_json.size() && m_json.at(m_position) == '\n')
            ++m_line;
    }
    if (m_levels.empty() || !m_levels.back().expectsKey)
        return;
    m_levels.back().expectsKey = false;
    const QByteArrayView raw(m_json.constData() + start, std::min(m_position, m_json.size()) - start);
    m_keys.push_back({escapes ? unescaped(raw) : raw, line});
}

void JsonKeyScanner::closeLevel()
{
    if (m_levels.empty())
        return;
    const auto first = m_keys.begin() + std::ptrdiff_t(m_levels.back().firstKey);
    std::stable_sort(first, m_keys.end(), [](const Key& a, const Key& b) { return a.text < b.text; });
    for (auto key = first; key != m_keys.end(); ++key) {
        const auto next = key + 1;
        if (next == m_keys.end() || key->text != next->text || (m_found && m_found->secondLine <= next->line))
            continue;
        m_found = Duplicate{key->text.toByteArray(), key->line, next->line};
    }
    m_keys.erase(first, m_keys.end());
    m_levels.pop_back();
}

QByteArrayView JsonKeyScanner::unescaped(QByteArrayView raw)
{
    QByteArray text;
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw.at(i) != '\\' || i + 1 == raw.size()) {
            text += raw.at(i);
            continue;
        }
        const char escape = raw.at(++i);
        if (escape != 'u') {
            constexpr QByteArrayView letters = "bfnrt";
            constexpr QByteArrayView meanings = "\b\f\n\r\t";
            const qsizetype index = letters.indexOf(escape);
            text += index < 0 ? escape : meanings.at(index);
            continue;
        }
        uint code = hexadecimal(raw, i + 1).value_or(0);
        i += 4;
        if (QChar::isHighSurrogate(code) && i + 2 < raw.size() && raw.at(i + 1) == '\\' && raw.at(i + 2) == 'u') {
            const uint low = hexadecimal(raw, i + 3).value_or(0);
            if (QChar::isLowSurrogate(low)) {
                code = QChar::surrogateToUcs4(char16_t(code), char16_t(low));
                i += 6;
            }
        }
        appendUtf8(text, code);
    }
    return m_unescaped.emplace_back(text);
}

} // namespace Korvex::Meridane::Designer
