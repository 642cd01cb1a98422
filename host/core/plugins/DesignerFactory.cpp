#include "host/core/plugins/DesignerFactory.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/CoreFactory.h"
#include "host/core/plugins/PluginLoader.h"

#include "host/common/LocalizationHelper.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <algorithm>

namespace Korvex::Meridane::Designer {

DesignerFactory* DesignerFactory::instance()
{
    static DesignerFactory factory;
    return &factory;
}

DesignerFactory::DesignerFactory()
    : m_coreFactory(std::make_unique<CoreFactory>())
{
    m_factories.push_back({m_coreFactory.get(), QString()});
    index();
}

DesignerFactory::~DesignerFactory() = default;

DesignerObject* DesignerFactory::createDataObject(const QString& className, QObject* parent)
{
    const auto entry = m_dataObjects.constFind(className);
    if (entry == m_dataObjects.constEnd())
        return nullptr;
    std::unique_ptr<DesignerObject> object(m_factories[*entry].factory->createDataObject(className, parent));
    return object && object->initialize() ? object.release() : nullptr;
}

GraphicsItem* DesignerFactory::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    const auto entry = m_graphicsItems.constFind(className);
    return entry == m_graphicsItems.constEnd() ? nullptr
                                               : m_factories[*entry].factory->createGraphicsItem(className, dataObject);
}

PropertyEditor* DesignerFactory::createPropertyEditor(const QString& className, QWidget* parent)
{
    const auto entry = m_editors.constFind(className);
    return entry == m_editors.constEnd() ? nullptr
                                         : m_factories[*entry].factory->createPropertyEditor(className, parent);
}

bool DesignerFactory::addFactory(IDesignerFactory* factory, const QString& pluginName, QString* message)
{
    const QStringList names =
        factory->dataObjectClassNames() + factory->graphicsItemClassNames() + factory->propertyEditorClassNames();
    for (const QString& name : names) {
        if (!m_dataObjects.contains(name) && !m_graphicsItems.contains(name) && !m_editors.contains(name))
            continue;
        if (message) {
            *message = Common::LocalizationHelper::coreString(
                           QStringLiteral("The plug-in %1 cannot be used: the class \"%2\" exists already."))
                           .arg(pluginName, name);
        }
        return false;
    }
    m_factories.push_back({factory, pluginName});
    index();
    return true;
}

void DesignerFactory::removeFactory(IDesignerFactory* factory)
{
    std::erase_if(m_factories, [factory](const Entry& entry) { return entry.factory == factory; });
    index();
}

bool DesignerFactory::loadPlugin(const QString& file, QString* message)
{
    const QString path = QFileInfo(file).canonicalFilePath();
    if (!path.isEmpty() && m_loadedFiles.contains(path))
        return true;
    IDesignerFactory* factory = PluginLoader::load(file, message);
    if (!factory || !addFactory(factory, QFileInfo(file).baseName(), message))
        return false;
    m_loadedFiles.append(path);
    return true;
}

QStringList DesignerFactory::loadPlugins(const QString& folder)
{
    QStringList messages;
    const QDir dir(folder);
    const QStringList files = dir.entryList(QDir::Files, QDir::Name);
    for (const QString& file : files) {
        QString message;
        if (QLibrary::isLibrary(file) && !loadPlugin(dir.filePath(file), &message))
            messages.append(message);
    }
    return messages;
}

QStringList DesignerFactory::loadInstalledPlugins()
{
    QStringList folders{QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../plugins"))};
    folders += qEnvironmentVariable("MERIDANE_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    QStringList messages;
    for (const QString& folder : std::as_const(folders))
        messages += loadPlugins(folder);
    return messages;
}

QStringList DesignerFactory::elementClassNames() const
{
    QStringList names;
    for (const Entry& entry : m_factories) {
        if (entry.factory != m_coreFactory.get())
            names += entry.factory->dataObjectClassNames();
    }
    return names;
}

QString DesignerFactory::pluginName(const QString& className) const
{
    const auto entry = m_dataObjects.constFind(className);
    return entry == m_dataObjects.constEnd() ? QString() : m_factories[*entry].pluginName;
}

bool DesignerFactory::hasDataObject(const QString& className) const
{
    return m_dataObjects.contains(className);
}

void DesignerFactory::index()
{
    m_dataObjects.clear();
    m_graphicsItems.clear();
    m_editors.clear();
    for (std::size_t i = 0; i < m_factories.size(); ++i) {
        const auto enter = [i](QHash<QString, std::size_t>& hash, const QStringList& names) {
            for (const QString& name : names)
                hash.insert(name, i);
        };
        enter(m_dataObjects, m_factories[i].factory->dataObjectClassNames());
        enter(m_graphicsItems, m_factories[i].factory->graphicsItemClassNames());
        enter(m_editors, m_factories[i].factory->propertyEditorClassNames());
    }
}

} // namespace Korvex::Meridane::Designer
