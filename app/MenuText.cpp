#include "app/MenuText.h"

namespace Korvex::Meridane::Designer {

namespace {

/// The index of the '&' that marks a mnemonic ("&&" is a plain ampersand), or -1.
qsizetype markIndex(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) != QLatin1Char('&'))
            return i;
        ++i;
    }
    return -1;
}

} // namespace

QString MenuText::withoutReservedMnemonic(const QString& text)
{
    const QChar letter = mnemonic(text);
    if (letter.isNull() || !QString(ReservedLetters).contains(letter))
        return text;
    QString plain = text;
    return plain.remove(markIndex(text), 1);
}

QChar MenuText::mnemonic(const QString& text)
{
    const qsizetype mark = markIndex(text);
    return mark < 0 ? QChar() : text.at(mark + 1).toLower();
}

} // namespace Korvex::Meridane::Designer
