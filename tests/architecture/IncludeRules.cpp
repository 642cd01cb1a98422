#include "tests/architecture/IncludeRules.h"

#include <algorithm>
#include <iterator>

namespace Korvex::Meridane::Architecture {

namespace {

/// A folder and the folders besides itself that its files may include.
struct Layer
{
    QString folder;
    QStringList mayUse;
    bool widgets = true;
};

const QVector<Layer>& layers()
{
    const QString host = QStringLiteral("host");
    const QString common = QStringLiteral("host/common");
    static const QVector<Layer> table = {
        {common, {}, false},
        {QStringLiteral("host/core"), {common}},
        {QStringLiteral("shapes"), {host}},
        {QStringLiteral("lines"), {host}},
        {QStringLiteral("text"), {host}},
        {QStringLiteral("images"), {host}},
        {QStringLiteral("gradients"), {host}},
        {QStringLiteral("plugin"),
         {host, QStringLiteral("shapes"), QStringLiteral("lines"), QStringLiteral("text"), QStringLiteral("images"),
          QStringLiteral("gradients")}},
        {QStringLiteral("runtime"), {common}, false},
        {QStringLiteral("cli"), {host}},
        {QStringLiteral("app"), {host}},
        {QStringLiteral("examples"), {host}},
        {QStringLiteral("translations"), {}, false},
    };
    return table;
}

/// Implementations in one element folder that the others are meant to call, and why there is only one of each.
const QSet<QString>& sharedImplementations()
{
    static const QSet<QString> headers = {};
    return headers;
}

/// The names by which the plug-in's classes are created; to the host they are data.
const QSet<QString>& pluginClassNames()
{
    static const QSet<QString> names = [] {
        const char* const list[] = {"Rectangle",
                                    "Ellipse",
                                    "Image",
                                    "Line",
                                    "Polygon",
                                    "IrregularPolygon",
                                    "TextBox",
                                    "PathElement",
                                    "GradientElement",
                                    "LinearGradientElement",
                                    "RadialGradientElement",
                                    "ConicalGradientElement",
                                    "GraphicsEllipse",
                                    "GraphicsImage",
                                    "GraphicsLine",
                                    "GraphicsPolygon",
                                    "GraphicsIrregularPolygon",
                                    "GraphicsTextBox",
                                    "GraphicsPathItem",
                                    "GraphicsLinearGradient",
                                    "GraphicsRadialGradient",
                                    "GraphicsConicalGradient",
                                    "ImageSizeEditor",
                                    "TextAlignmentEditor",
                                    "PointListEditor",
                                    "TextStyleEditor",
                                    "TextEditPropertyEditor",
                                    "GradientStopsEditor",
                                    "FocusRealEditor"};
        QSet<QString> set;
        for (const char* name : list)
            set.insert(QLatin1String(name));
        return set;
    }();
    return names;
}

bool isBelow(const QString& path, const QString& folder)
{
    return path.startsWith(folder + QLatin1Char('/'));
}

/// The row of the folder that @p path stands in, or null for the folders that may use everything.
const Layer* layerOf(const QString& path)
{
    const auto found = std::find_if(layers().cbegin(), layers().cend(),
                                    [&path](const Layer& layer) { return isBelow(path, layer.folder); });
    return found == layers().cend() ? nullptr : &*found;
}

bool isGenerated(const QString& target)
{
    return target.endsWith(QLatin1String(".moc")) || target.startsWith(QLatin1String("moc_"));
}

/// The one widget header that host/common may read: its class's `state` needs no symbol of the Widgets library.
bool isStyleOption(const QString& target)
{
    return target.section(QLatin1Char('/'), -1) == QLatin1String("QStyleOptionGraphicsItem");
}

QString message(const SourceFile& file, int line, const QString& text)
{
    return QStringLiteral("%1:%2: %3").arg(file.path()).arg(line).arg(text);
}

} // namespace

IncludeRules::IncludeRules(const QSet<QString>& ourFiles, const QSet<QString>& widgetHeaders)
    : m_ourFiles(ourFiles)
    , m_widgetHeaders(widgetHeaders)
{}

bool IncludeRules::isWidgetHeader(const QString& target) const
{
    return target.startsWith(QLatin1String("QtWidgets")) || m_widgetHeaders.contains(target);
}

QString IncludeRules::violation(const SourceFile& file, const Include& include) const
{
    const QString& target = include.target;
    if (isGenerated(target))
        return {};
    if (target.contains(QLatin1String("private/")))
        return QStringLiteral("includes <%1>, which is private to Qt").arg(target);

    const bool ours = m_ourFiles.contains(target);
    if (include.quoted && !ours)
        return QStringLiteral("includes \"%1\", which is no file of ours by its path from the root").arg(target);
    if (!include.quoted && ours)
        return QStringLiteral("includes <%1> in brackets, which is a file of ours").arg(target);

    const Layer* layer = layerOf(file.path());
    if (layer == nullptr)
        return {};
    if (!ours) {
        const bool allowed =
            layer->widgets || !isWidgetHeader(target)
            || (layer->folder == QLatin1String("host/common") && !file.isHeader() && isStyleOption(target));
        return allowed ? QString() : QStringLiteral("%1 may not use widgets: <%2>").arg(layer->folder, target);
    }
    const bool allowed = isBelow(target, layer->folder) || sharedImplementations().contains(target)
                         || std::any_of(layer->mayUse.cbegin(), layer->mayUse.cend(),
                                        [&target](const QString& folder) { return isBelow(target, folder); });
    return allowed ? QString() : QStringLiteral("%1 may not use \"%2\"").arg(layer->folder, target);
}

QStringList IncludeRules::violations(const SourceFile& file) const
{
    QStringList found;
    for (const Include& include : file.includes()) {
        const QString text = violation(file, include);
        if (!text.isEmpty())
            found.append(message(file, include.line, text));
    }
    if (file.isHeader() && !file.startsWithPragmaOnce())
        found.append(message(file, 1, QStringLiteral("a header starts with #pragma once")));
    if (isBelow(file.path(), QStringLiteral("host"))) {
        for (const Literal& literal : file.literals()) {
            if (!literal.localised && pluginClassNames().contains(literal.text))
                found.append(message(file, literal.line,
                                     QStringLiteral("the host names the plug-in's class \"%1\"").arg(literal.text)));
        }
    }
    return found;
}

QStringList IncludeRules::violations(const QVector<SourceFile>& files) const
{
    QStringList found;
    QStringList widgetReaders;
    for (const SourceFile& file : files) {
        found.append(violations(file));
        const bool reads =
            std::any_of(file.includes().cbegin(), file.includes().cend(),
                        [this](const Include& include) { return !include.quoted && isWidgetHeader(include.target); });
        if (reads && isBelow(file.path(), QStringLiteral("host/common")))
            widgetReaders.append(file.path());
    }
    if (widgetReaders.size() > 1)
        found.append(QStringLiteral("only one source of host/common may read a widget header, not %1")
                         .arg(widgetReaders.join(QLatin1String(", "))));
    return found;
}

} // namespace Korvex::Meridane::Architecture
