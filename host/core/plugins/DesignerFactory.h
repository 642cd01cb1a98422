#pragma once

#include "host/core/CoreExport.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <vector>

class QObject;
class QWidget;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class GraphicsItem;
class IDesignerFactory;
class PropertyEditor;

/**
 * The registry of all class names: the host's own and those of the loaded plug-ins.
 *
 * Objects are made by name; a request goes to the factory that lists the name, the host's own first. Unknown names
 * give null. Data objects come initialised; what cannot be initialised is discarded.
 */
class MERIDANE_CORE_EXPORT DesignerFactory
{
public:
    [[nodiscard]] static DesignerFactory* instance();

    /// The object, initialised and owned by \a parent (or the caller, when null), or null.
    DesignerObject* createDataObject(const QString& className, QObject* parent);
    GraphicsItem* createGraphicsItem(const QString& className, DesignerObject* dataObject);
    PropertyEditor* createPropertyEditor(const QString& className, QWidget* parent);

    /// Adds a plug-in's factory under the name that "describe" shows; the factory belongs to the caller and stays valid
    /// until removed. A class name that is already served is refused with a message and nothing is added.
    bool addFactory(IDesignerFactory* factory, const QString& pluginName, QString* message = nullptr);
    void removeFactory(IDesignerFactory* factory);

    /// Loads one plug-in file (see PluginLoader); false with a message that names the file.
    bool loadPlugin(const QString& file, QString* message);
    /// Loads every plug-in of \a folder in order of file name; messages of those that were refused. Files that are
    /// loaded already are passed over.
    QStringList loadPlugins(const QString& folder);
    /// Loads the plug-ins from the folder "plugins" beside the folder of the program and from the folders that the
    /// environment variable MERIDANE_PLUGIN_PATH lists.
    QStringList loadInstalledPlugins();

    /// The element classes that the plug-ins offer, in the order of loading and of their lists.
    [[nodiscard]] QStringList elementClassNames() const;
    /// The name of the plug-in that serves a data object class; empty for the host's own and for unknown names.
    [[nodiscard]] QString pluginName(const QString& className) const;
    [[nodiscard]] bool hasDataObject(const QString& className) const;

private:
    DesignerFactory();
    ~DesignerFactory();

    struct Entry
    {
        IDesignerFactory* factory;
        QString pluginName;
    };
    std::unique_ptr<IDesignerFactory> m_coreFactory;
    std::vector<Entry> m_factories;
    QHash<QString, std::size_t> m_dataObjects;
    QHash<QString, std::size_t> m_graphicsItems;
    QHash<QString, std::size_t> m_editors;
    QStringList m_loadedFiles;

    void index();
};

} // namespace Korvex::Meridane::Designer
