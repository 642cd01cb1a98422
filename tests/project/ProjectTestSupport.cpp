#include "tests/project/ProjectTestSupport.h"

#include "host/common/EnumHelper.h"
#include "host/common/PaintHelper.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/BorderProperty.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/EnumProperty.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/PropertyValidators.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/properties/StringProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace Korvex::Meridane::Designer::Test {

bool AllTypesElement::initializeProperties()
{
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Screen"));
    info.setFilterType(className());
    info.setBase(QStringLiteral("allTypes"));
    info.setName(QStringLiteral("allTypes"));
    if (!VisualElement::initializeProperties() || !setIdInfo(info))
        return false;
    int rank = 10;
    const auto declare = [&rank](auto&& declaration) -> QSharedPointer<DesignerProperty> {
        return std::move(declaration).rank(rank++).allowInvalid();
    };
    const auto label = [](const char* text) { return QString::fromLatin1(text); };
    ObjectLinkInfo image;
    image.setScopeType(QStringLiteral("Project"));
    image.setFilterType(QStringLiteral("ImageResource"));
    ObjectLinkInfo element;
    element.setScopeType(QStringLiteral("Screen"));
    element.setFilterType(className());
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    const auto notAbove100 = [](const DesignerProperty* property, QString& message) {
        message.clear();
        if (ValueConversion::toInt(property->valueString()) > 100)
            message = QStringLiteral("The number must not be above 100.");
        return message.isEmpty();
    };
    declare(PropertyDeclaration<SizeProperty>(this, QLatin1String("size"), label("Size"), QSizeF(20, 10))
                .flags(Stored | Exported)
                .parameters({{QStringLiteral("minimumValue"), QSizeF(1, 1)}}));
    declare(PropertyDeclaration<SizeProperty>(this, QLatin1String("boundingSize"), label("Size"), QSizeF(20, 10))
                .flags(Shown | Editable));
    declare(PropertyDeclaration<RealProperty>(this, QLatin1String("keepRatio"), label("Ratio"), 0.0)
                .flags(Shown | Editable));
    declare(PropertyDeclaration<ColorProperty>(this, QLatin1String("color"), label("Color"), QColor(248, 151, 29)));
    declare(
        PropertyDeclaration<BorderProperty>(this, QLatin1String("border"), label("Border"), BorderInfo(0, Qt::black)));
    declare(
        PropertyDeclaration<IntegerProperty>(this, QLatin1String("number"), label("Number"), 1).validator(notAbove100));
    declare(PropertyDeclaration<RealProperty>(this, QLatin1String("real"), label("Real"), 1.5)
                .parameters({{QStringLiteral("minimum"), 0}, {QStringLiteral("maximum"), 359.99}}));
    const auto longText = [](const DesignerProperty* property) {
        return property->valueString().size() > 40 ? QStringLiteral("Is the text not too long?") : QString();
    };
    declare(
        PropertyDeclaration<StringProperty>(this, QLatin1String("text"), label("Text"), QString()).advisor(longText));
    declare(PropertyDeclaration<FontProperty>(this, QLatin1String("font"), label("Font"), font));
    declare(PropertyDeclaration<PointProperty>(this, QLatin1String("point"), label("Point"), QPointF(0, 0))
                .flags(Stored | Shown));
    declare(PropertyDeclaration<PointListProperty>(this, QLatin1String("points"), label("Points"), QPolygonF()));
    declare(
        PropertyDeclaration<EnumProperty>(this, QLatin1String("style"), label("Style"),
                                          EnumInfo(Common::EnumHelper::createEnum(QStringLiteral("TextStyle")), 0)));
    declare(PropertyDeclaration<LinkProperty>(this, QLatin1String("image"), label("Image"), image)
                .flags(Stored | Exported | Shown | Editable)
                .validator(PropertyValidators::validLinkValidator));
    declare(PropertyDeclaration<LinkProperty>(this, QLatin1String("target"), label("Target"), element)
                .flags(Stored | Shown | Editable)
                .validator(PropertyValidators::validLinkValidator));
    declare(
        PropertyDeclaration<StringProperty>(this, QLatin1String("hidden"), label("Hidden"), QString()).flags(Exported));
    return true;
}

QRectF AllTypesElement::getBoundingRect() const
{
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(getProperty(QStringLiteral("size"))->valueString(), &ok);
    const BorderInfo border = ValueConversion::toBorderInfo(getProperty(QStringLiteral("border"))->valueString());
    return ok ? Common::PaintHelper::getBoundingRect(size.width(), size.height(), border.width()) : QRectF();
}

QList<QSharedPointer<DesignerProperty>> AllTypesElement::getDependencyProperties() const
{
    return {getProperty(QStringLiteral("image")), getProperty(QStringLiteral("target"))};
}

AllTypesFactory::AllTypesFactory()
{
    DesignerFactory::instance()->addFactory(this, QStringLiteral("tests"));
}

AllTypesFactory::~AllTypesFactory()
{
    DesignerFactory::instance()->removeFactory(this);
}

DesignerObject* AllTypesFactory::createDataObject(const QString& className, QObject* parent)
{
    return className == QLatin1String("AllTypes") ? new AllTypesElement(parent) : nullptr;
}

FaultyOperations::FaultyOperations(int failing, bool persistent, std::function<void()> fault)
    : m_failing(failing)
    , m_persistent(persistent)
    , m_fault(std::move(fault))
{
    setCurrent(this);
}

FaultyOperations::~FaultyOperations()
{
    setCurrent(nullptr);
}

bool FaultyOperations::fails(const QString& operation, const QString& path, QString* error)
{
    ++m_count;
    m_log.append(operation + QLatin1Char(' ') + path);
    if (m_count != m_failing && !(m_persistent && m_failing > 0 && m_count > m_failing))
        return false;
    if (m_fault)
        m_fault();
    if (error)
        *error = path + QStringLiteral(": fault of a test");
    return true;
}

bool FaultyOperations::createFile(const QString& path, const QByteArray& content, QString* error)
{
    if (m_tears && m_count + 1 == m_failing)
        writeFile(path, content.first(content.size() / 2));
    return !fails(QStringLiteral("create"), path, error) && FileOperations::createFile(path, content, error);
}

bool FaultyOperations::rename(const QString& from, const QString& to, QString* error)
{
    return !fails(QStringLiteral("rename"), to, error) && FileOperations::rename(from, to, error);
}

bool FaultyOperations::exchange(const QString& one, const QString& other, QString* error)
{
    return !fails(QStringLiteral("exchange"), other, error) && FileOperations::exchange(one, other, error);
}

bool FaultyOperations::removeFile(const QString& path, QString* error)
{
    return !fails(QStringLiteral("remove"), path, error) && FileOperations::removeFile(path, error);
}

bool FaultyOperations::makeFolder(const QString& path, QString* error)
{
    return !fails(QStringLiteral("mkdir"), path, error) && FileOperations::makeFolder(path, error);
}

bool FaultyOperations::removeFolder(const QString& path, QString* error)
{
    return !fails(QStringLiteral("rmdir"), path, error) && FileOperations::removeFolder(path, error);
}

bool FaultyOperations::syncFolder(const QString& path, QString* error)
{
    return !fails(QStringLiteral("sync"), path, error) && FileOperations::syncFolder(path, error);
}

QMap<QString, QByteArray> filesOf(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        files.insert(QDir(folder).relativeFilePath(path), readFile(path));
    }
    return files;
}

QMap<QString, QString> projectsBelow(const QString& folder)
{
    QMap<QString, QString> projects;
    QDirIterator files(folder, {QStringLiteral("project.json")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString project = QFileInfo(files.next()).path();
        projects.insert(QDir(folder).relativeFilePath(project), project);
    }
    return projects;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        qFatal("%s cannot be written", qUtf8Printable(path));
}

/// Saves wait for the disk; where there is a file system in memory they have nothing to wait for.
static QString scratchFolder()
{
    const QFileInfo memory(QStringLiteral("/dev/shm"));
    return memory.isDir() && memory.isWritable() ? memory.filePath() : QDir::tempPath();
}

ProjectFixture::ProjectFixture()
    : m_temporary(scratchFolder() + QStringLiteral("/meridane-test-XXXXXX"))
{
    QDir().mkpath(folder());
}

void ProjectFixture::write(const char* file, const QByteArray& content) const
{
    writeFile(folder() + QLatin1Char('/') + QString::fromUtf8(file), content);
}

QByteArray ProjectFixture::read(const char* file) const
{
    return readFile(folder() + QLatin1Char('/') + QString::fromUtf8(file));
}

void ProjectFixture::writeProject(const QStringList& screens, const QByteArray& more) const
{
    QStringList quoted;
    for (const QString& screen : screens)
        quoted.append(QLatin1Char('"') + screen + QLatin1Char('"'));
    write("project.json", "{\"formatVersion\": 1, \"name\": \"Test\", \"displaySize\": \"200,100\", \"screens\": ["
                              + quoted.join(QLatin1Char(',')).toUtf8() + "]" + more + "}");
}

void ProjectFixture::writeScreen(const char* id, const QByteArray& elements) const
{
    const QByteArray name(id);
    write(("screens/" + name + ".json").constData(),
          "{\"class\": \"Screen\", \"id\": \"" + name + "\", \"properties\": {\"size\": \"200,100\"}, \"elements\": ["
              + elements + "]}");
}

std::unique_ptr<Project> load(const QString& folder)
{
    QList<Problem> problems;
    return load(folder, &problems);
}

std::unique_ptr<Project> load(const QString& folder, QList<Problem>* problems)
{
    ProjectStore::Loaded loaded = ProjectStore::load(folder);
    *problems = loaded.problems;
    if (loaded.project)
        problems->append(ProjectStore::readAllScreens(loaded.project.get()));
    return std::move(loaded.project);
}

QString textOf(const QList<Problem>& problems)
{
    QStringList lines;
    for (const Problem& problem : problems) {
        lines.append(
            (problem.severity == Problem::Severity::Error ? QStringLiteral("error: ") : QStringLiteral("warning: "))
            + problem.text());
    }
    return lines.join(QLatin1Char('\n'));
}

DesignerObject* addElement(Project* project, Screen* screen, const char* id)
{
    auto element = std::make_unique<AllTypesElement>();
    DesignerObject* added = element.get();
    element->initialize();
    if (id)
        element->setIdName(QString::fromUtf8(id));
    project->execute(std::make_unique<AddObject>(screen, std::move(element), -1, nullptr));
    return added;
}

void setValue(DesignerObject* object, const char* property, const QString& value)
{
    Project::parentProject(object)->execute(
        std::make_unique<ChangeProperty>(object->getProperty(QString::fromUtf8(property)), value, false, nullptr));
}

QString valueOf(const DesignerObject* object, const char* property)
{
    const auto found = object->getProperty(QString::fromUtf8(property));
    return found ? found->valueString() : QStringLiteral("(no such property)");
}

} // namespace Korvex::Meridane::Designer::Test
