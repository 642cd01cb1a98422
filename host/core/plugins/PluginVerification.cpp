#include "host/core/plugins/PluginVerification.h"

#include "host/common/LocalizationHelper.h"

#include <QStringList>

namespace Korvex::Meridane::Designer {

namespace {

/// "6.4" of "6.4.2": libraries of one minor version are compatible with each other.
QString majorMinor(const QString& version)
{
    return version.section(QLatin1Char('.'), 0, 1);
}

QString difference(const char* text, const QString& plugin, const QString& host)
{
    return Common::LocalizationHelper::coreString(QString::fromLatin1(text)).arg(plugin, host);
}

} // namespace

std::optional<PluginVerification> PluginVerification::parse(const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.size() < 4 || lines.at(0) != QLatin1String("pattern=QT_PLUGIN_VERIFICATION_DATA"))
        return std::nullopt;
    const auto value = [&lines](int line, QLatin1String key) {
        const QString& text = lines.at(line);
        return text.startsWith(key) ? text.mid(key.size()) : QString();
    };
    PluginVerification verification{value(1, QLatin1String("version=")), value(2, QLatin1String("debug=")),
                                    value(3, QLatin1String("buildkey="))};
    if (verification.version.isEmpty() || verification.debug.isEmpty() || verification.buildKey.isEmpty())
        return std::nullopt;
    return verification;
}

PluginVerification PluginVerification::ofHost()
{
    return *parse(QStringLiteral(MERIDANE_VERIFICATION_TEXT));
}

bool PluginVerification::accepts(const PluginVerification& plugin, QString* reason) const
{
    QString found;
    if (majorMinor(plugin.version) != majorMinor(version))
        found = difference("it was built with Qt %1, this program with Qt %2", plugin.version, version);
    else if (plugin.debug != debug)
        found = difference("it was built with debug=%1, this program with debug=%2", plugin.debug, debug);
    else if (plugin.buildKey != buildKey)
        found = difference("its build key is \"%1\", that of this program \"%2\"", plugin.buildKey, buildKey);
    if (reason)
        *reason = found;
    return found.isEmpty();
}

} // namespace Korvex::Meridane::Designer
