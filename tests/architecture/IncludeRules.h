#pragma once

#include "tests/architecture/SourceFile.h"

#include <QSet>

namespace Korvex::Meridane::Architecture {

/**
 * Who may use whom, checked on the includes of the sources.
 *
 * | folder                                 | may include                          |
 * |----------------------------------------|--------------------------------------|
 * | host/common                            | itself; no widgets                   |
 * | host/core                              | itself, host/common                  |
 * | shapes, lines, text, images, gradients | itself, host, shared implementations |
 * | plugin                                 | itself, the element folders, host    |
 * | runtime                                | itself, host/common; no widgets      |
 * | cli, app                               | itself, host                         |
 * | examples                               | itself, host                         |
 * | translations                           | itself; no widgets                   |
 * | tests, benchmarks, fuzz                | everything                           |
 *
 * Besides: the host knows no class of the plug-in by name, a header starts with `#pragma once`, our own files are
 * included in quotes by their path from the root, and nothing private of Qt is included.
 */
class IncludeRules
{
public:
    /**
     * @p ourFiles are the paths of all files of the tree, relative to its root; @p widgetHeaders the names of the
     * headers in Qt's QtWidgets folder.
     */
    IncludeRules(const QSet<QString>& ourFiles, const QSet<QString>& widgetHeaders);

    /** One message a violation in @p file, with path and line; empty when it keeps all rules. */
    [[nodiscard]] QStringList violations(const SourceFile& file) const;
    /** Rules that concern several files together: only one source of host/common reads a widget header. */
    [[nodiscard]] QStringList violations(const QVector<SourceFile>& files) const;

private:
    [[nodiscard]] QString violation(const SourceFile& file, const Include& include) const;
    [[nodiscard]] bool isWidgetHeader(const QString& target) const;

    QSet<QString> m_ourFiles;
    QSet<QString> m_widgetHeaders;
};

} // namespace Korvex::Meridane::Architecture
