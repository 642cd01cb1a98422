// meridane-texts ROOT OUTPUT: writes the texts of the sources below ROOT in a form that Qt's extractor understands.

#include "translations/SourceTexts.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSet>

#include <cstdio>

using namespace Korvex::Meridane::Translations;

namespace {

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('"'), QLatin1String("\\\""));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/** One call for each text; the comment before it tells translators where the text is from. */
QString callFor(const SourceText& text, const QString& file)
{
    return QStringLiteral("//: %1\nQCoreApplication::translate(%2, %3%4);\n")
        .arg(file, quoted(text.context), quoted(text.text), text.counted ? QStringLiteral(", nullptr, n") : QString());
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: meridane-texts ROOT OUTPUT\n");
        return 2;
    }
    const QString root = QFile::decodeName(argv[1]);
    QString calls;
    QSet<QString> known;
    bool complete = true;
    for (const QString& path : SourceTexts::files(root)) {
        QFile file(QDir(root).filePath(path));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s: %s\n", qUtf8Printable(path), qUtf8Printable(file.errorString()));
            return 1;
        }
        const SourceTexts source(QString::fromUtf8(file.readAll()));
        for (const HiddenText& hidden : source.hidden()) {
            std::fprintf(stderr, "%s:%d: no literal, and none is marked with QT_TRANSLATE_NOOP: %s\n",
                         qUtf8Printable(path), hidden.line, qUtf8Printable(hidden.call));
            complete = false;
        }
        for (const SourceText& text : source.texts()) {
            const QString key = text.context + QLatin1Char('\n') + text.text;
            if (!known.contains(key))
                calls += callFor(text, path);
            known.insert(key);
        }
    }
    QSaveFile output(QFile::decodeName(argv[2]));
    const QString code = QStringLiteral("void texts(int n)\n{\n%1}\n").arg(calls);
    if (!output.open(QIODevice::WriteOnly) || output.write(code.toUtf8()) < 0 || !output.commit()) {
        std::fprintf(stderr, "%s: %s\n", argv[2], qUtf8Printable(output.errorString()));
        return 1;
    }
    return complete ? 0 : 1;
}
