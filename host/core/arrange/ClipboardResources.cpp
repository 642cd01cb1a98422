#include "host/core/arrange/ClipboardResources.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFonts.h"
#include "host/core/project/ResourceImporter.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

namespace Korvex::Meridane::Designer {

namespace {

const QLatin1String ImagesFolderKey("imagesFolder");
const QLatin1String ImagesKey("images");
const QLatin1String FontsFolderKey("fontsFolder");
const QLatin1String FontsKey("fonts");

/// What is larger than this in all, in bytes, goes along by its folder alone.
constexpr qsizetype MostEmbedded = 16 * 1024 * 1024;

/// Only a plain file name can be a resource.
bool isPlainName(const QString& name)
{
    return !name.isEmpty() && name == QFileInfo(name).fileName() && name != QLatin1String("..")
           && name != QLatin1String(".");
}

QByteArray contentOf(const QString& folder, const QString& name)
{
    QFile file(QDir(folder).filePath(name));
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <typename Object, typename Visitor>
void visit(Object* object, const Visitor& visitor)
{
    for (const auto& property : object->properties())
        visitor(property);
    if (const ObjectListProperty* list = object->childList()) {
        for (DesignerObject* child : list->items())
            visit(static_cast<Object*>(child), visitor);
    }
}

/// The bytes of \a name, which \a section of \a resources holds or which stand in \a folder.
QByteArray bytesOf(const QJsonObject& resources, QLatin1String section, const QString& folder, const QString& name)
{
    const QString embedded = resources.value(section).toObject().value(name).toString();
    return embedded.isEmpty() ? contentOf(folder, name) : QByteArray::fromBase64(embedded.toLatin1());
}

/// Writes \a bytes into a file called \a name in \a folder; its path, empty when that fails.
QString written(const QTemporaryDir& folder, const QString& name, const QByteArray& bytes)
{
    QFile file(folder.filePath(name));
    const bool ok =
        !bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return ok ? file.fileName() : QString();
}

} // namespace

QJsonObject ClipboardResources::collect(const Project* project, const QList<const DesignerObject*>& elements)
{
    QSet<QString> pictures;
    QSet<QString> families;
    for (const DesignerObject* element : elements) {
        visit(element, [&](const QSharedPointer<DesignerProperty>& property) {
            if (dynamic_cast<const LinkProperty*>(property.data()) && isPlainName(property->valueString()))
                pictures.insert(property->valueString());
            else if (dynamic_cast<const FontProperty*>(property.data()))
                families.insert(ValueConversion::toFont(property->valueString()).family());
        });
    }
    qsizetype room = MostEmbedded;
    const auto embed = [&room](QJsonObject& section, const QString& name, const QByteArray& bytes) {
        const bool fits = bytes.size() <= room;
        if (fits)
            room -= bytes.size();
        section.insert(name, fits ? QString::fromLatin1(bytes.toBase64()) : QString());
    };
    QJsonObject images;
    for (const QString& name : std::as_const(pictures)) {
        if (const QByteArray bytes = contentOf(project->imagesPath(), name); !bytes.isEmpty())
            embed(images, name, bytes);
    }
    QJsonObject fonts;
    const QStringList files = families.isEmpty() ? QStringList() : project->fontResources();
    for (const QString& name : files) {
        const QByteArray bytes = contentOf(project->fontsPath(), name);
        const QStringList held = ProjectFonts::familiesIn(bytes);
        if (std::any_of(held.cbegin(), held.cend(),
                        [&families](const QString& held) { return families.contains(held); }))
            embed(fonts, name, bytes);
    }
    return {{ImagesFolderKey, project->imagesPath()},
            {ImagesKey, images},
            {FontsFolderKey, project->fontsPath()},
            {FontsKey, fonts}};
}

void ClipboardResources::take(EditSession* session, const QJsonObject& resources,
                              const QList<DesignerObject*>& elements)
{
    Project* project = session->project();
    const QTemporaryDir folder;
    const QString imagesFolder = resources.value(ImagesFolderKey).toString();
    const bool sameProject = imagesFolder == project->imagesPath();
    QHash<QString, QString> names; // here, by those that the elements bring along
    const auto nameHere = [&](const QString& name) {
        // In the same project: an image may have been renamed or removed since.
        if (sameProject && project->imageResources().contains(name))
            return name;
        const QByteArray bytes = bytesOf(resources, ImagesKey, imagesFolder, name);
        if (bytes.isEmpty())
            return name;
        QString held = ResourceImporter::resourceHolding(project, bytes);
        if (!held.isEmpty())
            return held;
        QString imported;
        const QString file = written(folder, name, bytes);
        return !file.isEmpty() && session->importImage(file, &imported).accepted ? imported : name;
    };
    for (DesignerObject* element : elements) {
        visit(element, [&](const QSharedPointer<DesignerProperty>& property) {
            const QString name = property->valueString();
            if (!dynamic_cast<const LinkProperty*>(property.data()) || !isPlainName(name))
                return;
            if (!names.contains(name))
                names.insert(name, nameHere(name));
            if (names.value(name) != name)
                property->fill(names.value(name));
        });
    }
    const QString fontsFolder = resources.value(FontsFolderKey).toString();
    if (fontsFolder == project->fontsPath())
        return;
    const QStringList fonts = resources.value(FontsKey).toObject().keys();
    for (const QString& name : fonts) {
        const QString file =
            isPlainName(name) ? written(folder, name, bytesOf(resources, FontsKey, fontsFolder, name)) : QString();
        QString imported;
        if (!file.isEmpty())
            session->importFont(file, &imported);
    }
}

} // namespace Korvex::Meridane::Designer
