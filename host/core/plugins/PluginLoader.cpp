#include "host/core/plugins/PluginLoader.h"

#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/plugins/PluginVerification.h"

#include "host/common/LocalizationHelper.h"

#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

using VerificationFunction = const char* (*)();

QString refusal(const QString& file, const QString& reason)
{
    return LocalizationHelper::coreString(QStringLiteral("The plug-in %1 cannot be used: %2.")).arg(file, reason);
}

/// Why the library's own word on its build does not let it be used; empty when it does.
QString verify(QLibrary& library)
{
    if (!library.load())
        return LocalizationHelper::coreString(QStringLiteral("it is not a library that can be loaded (%1)"))
            .arg(library.errorString());
    const auto query = reinterpret_cast<VerificationFunction>(library.resolve("qt_plugin_query_verification_data"));
    if (!query)
        return LocalizationHelper::coreString(QStringLiteral("it has no function qt_plugin_query_verification_data"));
    const char* text = query();
    const auto verification = PluginVerification::parse(QString::fromUtf8(text));
    if (!verification)
        return LocalizationHelper::coreString(QStringLiteral("its verification data cannot be read"));
    QString reason;
    return PluginVerification::ofHost().accepts(*verification, &reason) ? QString() : reason;
}

} // namespace

IDesignerFactory* PluginLoader::load(const QString& file, QString* message)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    // Made before the library is loaded: Qt then reads the metadata from the file, later it would ask a symbol for them
    // that plug-ins do not export.
    QPluginLoader loader(path);
    QLibrary library(path);
    // An unresolved symbol of a foreign library must show here, not when it is first called.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    const QString reason = verify(library);
    if (!reason.isEmpty()) {
        library.unload();
        *message = refusal(path, reason);
        return nullptr;
    }

    auto* factory = qobject_cast<IDesignerFactory*>(loader.instance());
    if (!factory) {
        *message = refusal(path, loader.isLoaded()
                                     ? LocalizationHelper::coreString(QStringLiteral("it offers no element factory"))
                                     : loader.errorString());
        loader.unload();
        library.unload();
    }
    return factory;
}

} // namespace Korvex::Meridane::Designer
