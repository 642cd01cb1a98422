#include "tests/translations/TranslationFile.h"

#include <QFile>
#include <QXmlStreamReader>

namespace Korvex::Meridane::Translations {

namespace {

QStringList readForms(QXmlStreamReader* xml)
{
    QStringList forms;
    QString text;
    while (!xml->atEnd() && xml->readNext() != QXmlStreamReader::EndElement) {
        if (xml->isCharacters())
            text += xml->text();
        else if (xml->isStartElement())
            forms << xml->readElementText();
    }
    return forms.isEmpty() ? QStringList(text) : forms;
}

} // namespace

QVector<Translation> readTranslationFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Translation> found;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            const bool counted = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            found.append({context, {}, {}, counted, false});
        } else if (xml.name() == QLatin1String("source")) {
            found.last().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            found.last().finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            found.last().forms = readForms(&xml);
        }
    }
    return xml.hasError() ? QVector<Translation>() : found;
}

} // namespace Korvex::Meridane::Translations
