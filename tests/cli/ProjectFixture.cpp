#include "tests/cli/ProjectFixture.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

ProjectFixture::ProjectFixture()
{
    m_valid =
        m_temporary.isValid()
        && MeridaneProgram::run({QStringLiteral("new"), folder(), QStringLiteral("--size"), QStringLiteral("200x100")})
                   .status
               == 0;
}

MeridaneProgram::Result ProjectFixture::apply(const QByteArray& edits, const QStringList& options) const
{
    return MeridaneProgram::run(QStringList{QStringLiteral("apply"), folder(), QStringLiteral("-")} + options, edits);
}

MeridaneProgram::Result ProjectFixture::run(const char* command, const QStringList& options) const
{
    return MeridaneProgram::run(QStringList{QString::fromUtf8(command), folder()} + options);
}

QByteArray ProjectFixture::read(const char* file) const
{
    QFile source(folder() + QLatin1Char('/') + QString::fromUtf8(file));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

void ProjectFixture::write(const char* file, const QByteArray& content) const
{
    QFile target(folder() + QLatin1Char('/') + QString::fromUtf8(file));
    if (target.open(QIODevice::WriteOnly))
        target.write(content);
}

QJsonObject ProjectFixture::readJson(const char* file) const
{
    return QJsonDocument::fromJson(read(file)).object();
}

void ProjectFixture::writeJson(const char* file, const QJsonObject& object) const
{
    write(file, QJsonDocument(object).toJson());
}

void ProjectFixture::setElementKey(int index, const char* key, const QJsonValue& value) const
{
    QJsonObject screen = readJson("screens/main.json");
    QJsonArray elements = screen.value(QLatin1String("elements")).toArray();
    QJsonObject element = elements.at(index).toObject();
    element.insert(QLatin1String(key), value);
    elements.replace(index, element);
    screen.insert(QStringLiteral("elements"), elements);
    writeJson("screens/main.json", screen);
}

void ProjectFixture::setStoredValue(int index, const char* property, const QJsonValue& value) const
{
    const QJsonObject screen = readJson("screens/main.json");
    QJsonObject properties = screen.value(QLatin1String("elements"))
                                 .toArray()
                                 .at(index)
                                 .toObject()
                                 .value(QLatin1String("properties"))
                                 .toObject();
    properties.insert(QLatin1String(property), value);
    setElementKey(index, "properties", properties);
}

QMap<QString, QByteArray> ProjectFixture::content(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        files.insert(file.fileName().mid(folder.size()),
                     it.fileInfo().isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("folder"));
    }
    return files;
}

QByteArray ProjectFixture::addBox()
{
    return R"([{"op":"add","class":"Rectangle","id":"box","properties":{"position":"20,10","size":"50,40"}}])";
}
