// The desktop application: meridane-designer [PROJECT].

#include "app/Appearance.h"
#include "app/CoreText.h"
#include "app/DesignerStyle.h"
#include "app/DialogPrompts.h"
#include "app/MainWindow.h"

#include "host/core/plugins/DesignerFactory.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Korvex::Meridane::Designer;

namespace {

/// Installs the user's language for our texts and for Qt's own, where it is there.
void installTranslations(QApplication* application)
{
    const QLocale locale;
    auto* toolkit = new QTranslator(application);
    if (toolkit->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(toolkit);
    auto* own = new QTranslator(application);
    const QString folder =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../share/meridane/translations"));
    if (own->load(locale, QStringLiteral("meridane"), QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(own);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(new DesignerStyle);
    QCoreApplication::setApplicationName(QStringLiteral("meridane-designer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MERIDANE_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    installTranslations(&application);

    QCommandLineParser parser;
    parser.setApplicationDescription(coreText("Lays out the screens of small panel displays."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("project"),
                                 coreText("The project to open: its folder or its project.json."),
                                 QStringLiteral("[PROJECT]"));
    parser.process(application);

    Appearance::apply(Appearance::stored());
    const QStringList refusedPlugins = DesignerFactory::instance()->loadInstalledPlugins();
    DialogPrompts prompts;
    MainWindow window(&prompts);
    prompts.setWindow(&window);
    if (parser.positionalArguments().isEmpty())
        window.showStartPage();
    else
        window.openProject(parser.positionalArguments().constFirst());
    QList<Problem> problems;
    for (const QString& message : refusedPlugins)
        problems.append({Problem::Severity::Warning, {}, {}, {}, message});
    window.addProblems(problems);
    window.show();
    return QApplication::exec();
}
