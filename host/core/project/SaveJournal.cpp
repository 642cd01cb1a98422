#include "host/core/project/SaveJournal.h"

#include "host/core/objects/QmlIdentifier.h"
#include "host/core/project/JsonText.h"
#include "host/core/project/ProjectFolder.h"

#include <QJsonArray>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Version = 1;

/// A journal is read from a folder that anybody may have made; only files that a save writes may stand in it.
bool isProjectFile(const QString& file)
{
    if (file == ProjectFolder::projectFile())
        return true;
    const qsizetype slash = file.indexOf(QLatin1Char('/'));
    const QString folder = file.left(slash);
    const QString name = file.mid(slash + 1);
    if (folder == QLatin1String("screens"))
        return name.endsWith(QLatin1String(".json")) && isQmlIdentifier(name.chopped(5));
    return (folder == QLatin1String("images") || folder == QLatin1String("fonts"))
           && ProjectFolder::isResourceName(name);
}

bool isProjectSubfolder(const QString& folder)
{
    return folder == QLatin1String("screens") || folder == QLatin1String("images") || folder == QLatin1String("fonts");
}

} // namespace

QByteArray SaveJournal::toJson() const
{
    QJsonArray fileList;
    for (const File& file : files) {
        fileList.append(QJsonObject{{QStringLiteral("file"), file.file},
                                    {QStringLiteral("before"), QString::fromLatin1(file.before)},
                                    {QStringLiteral("after"), QString::fromLatin1(file.after)}});
    }
    QJsonArray removalList;
    for (const Removal& removal : removals) {
        removalList.append(QJsonObject{{QStringLiteral("file"), removal.file},
                                       {QStringLiteral("fingerprint"), QString::fromLatin1(removal.fingerprint)}});
    }
    return JsonText::write({{QStringLiteral("version"), Version},
                            {QStringLiteral("files"), fileList},
                            {QStringLiteral("removals"), removalList},
                            {QStringLiteral("folders"), QJsonArray::fromStringList(folders)}});
}

std::optional<SaveJournal> SaveJournal::fromJson(const QByteArray& json)
{
    QString error;
    const auto object = JsonText::parse(json, &error);
    if (!object || object->value(QLatin1String("version")).toInt() != Version)
        return {};
    SaveJournal journal;
    const QJsonArray files = object->value(QLatin1String("files")).toArray();
    for (const QJsonValue& entry : files) {
        journal.files.append({entry[QLatin1String("file")].toString(),
                              entry[QLatin1String("before")].toString().toLatin1(),
                              entry[QLatin1String("after")].toString().toLatin1()});
        if (!isProjectFile(journal.files.last().file))
            return {};
    }
    const QJsonArray removals = object->value(QLatin1String("removals")).toArray();
    for (const QJsonValue& entry : removals) {
        journal.removals.append(
            {entry[QLatin1String("file")].toString(), entry[QLatin1String("fingerprint")].toString().toLatin1()});
        if (!isProjectFile(journal.removals.last().file))
            return {};
    }
    const QJsonArray folders = object->value(QLatin1String("folders")).toArray();
    for (const QJsonValue& folder : folders) {
        journal.folders.append(folder.toString());
        if (!isProjectSubfolder(journal.folders.last()))
            return {};
    }
    return journal;
}

} // namespace Korvex::Meridane::Designer
