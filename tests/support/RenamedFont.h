#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

/**
 * The font file \a font as if it were another version of the font \a family in the style \a style of the foundry \a vendor
 * (four letters). The names may not be longer than those that are replaced. The sums of the tables are not those of the
 * new content, which nobody who draws text looks at.
 */
inline QByteArray renamedFont(QByteArray font, const QString& family, const QString& style, const QByteArray& vendor)
{
    const auto number = [&font](qsizetype at, int bytes) {
        const char* data = font.constData() + at;
        return qsizetype(bytes == 2 ? qFromBigEndian<quint16>(data) : qFromBigEndian<quint32>(data));
    };
    const auto rename = [&](qsizetype record, qsizetype texts, const QString& name) {
        QByteArray text;
        for (const QChar c : name) {
            text.append(char(c.unicode() >> 8));
            text.append(char(c.unicode()));
        }
        qToBigEndian(quint16(text.size()), font.data() + record + 8);
        font.replace(texts + number(record + 10, 2), text.size(), text);
    };
    for (qsizetype table = 12; table < 12 + 16 * number(4, 2); table += 16) {
        const qsizetype start = number(table + 8, 4);
        if (font.mid(table, 4) == "OS/2")
            font.replace(start + 58, 4, vendor);
        if (font.mid(table, 4) != "name")
            continue;
        for (qsizetype record = start + 6; record < start + 6 + 12 * number(start + 2, 2); record += 12) {
            const qsizetype kind = number(record + 6, 2);
            if (kind == 1)
                rename(record, start + number(start + 4, 2), family);
            else if (kind == 2)
                rename(record, start + number(start + 4, 2), style);
        }
    }
    return font;
}
