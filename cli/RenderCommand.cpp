#include "cli/RenderCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/Messages.h"
#include "cli/PictureComparison.h"
#include "cli/PictureFiles.h"
#include "cli/ProjectArgument.h"
#include "cli/StandardOutput.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"
#include "host/core/output/ScreenSvg.h"
#include "host/core/project/Project.h"
#include "host/core/values/ValueConversion.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// A picture may be this many times smaller or larger than the screen.
constexpr double SmallestScale = 0.01;
constexpr double LargestScale = 100;

bool isSameFolder(const QString& one, const QString& other)
{
    const QString path = QDir::cleanPath(QFileInfo(one).absoluteFilePath());
    const QString otherPath = QDir::cleanPath(QFileInfo(other).absoluteFilePath());
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return path == otherPath || (!canonical.isEmpty() && canonical == QFileInfo(otherPath).canonicalFilePath());
}

} // namespace

QString RenderCommand::name() const
{
    return QStringLiteral("render");
}

QString RenderCommand::synopsis() const
{
    return QStringLiteral("PROJECT --output FOLDER [--screen ID [--elements IDS]] [--scale F] [--format png|svg] "
                          "[--transparent] [--panel COLORS] [--compare FOLDER [--tolerance F]]");
}

QString RenderCommand::summary() const
{
    return QStringLiteral("Draws each screen into a picture as it stands on the canvas, without handles.");
}

QList<QCommandLineOption> RenderCommand::options() const
{
    return {{QStringLiteral("output"), QStringLiteral("The folder that gets a picture SCREEN.png for each screen."),
             QStringLiteral("FOLDER")},
            {QStringLiteral("screen"), QStringLiteral("Draws this screen alone."), QStringLiteral("ID")},
            {QStringLiteral("scale"), QStringLiteral("Picture pixels for one pixel of the display, 0.01 to 100; 1."),
             QStringLiteral("F")},
            {QStringLiteral("elements"),
             QStringLiteral("Draws these elements of the screen alone, as large as they are; ids separated by commas."),
             QStringLiteral("IDS")},
            {QStringLiteral("format"), QStringLiteral("png or svg: a picture SCREEN.png or a drawing SCREEN.svg; png."),
             QStringLiteral("FORMAT")},
            {QStringLiteral("transparent"), QStringLiteral("Leaves the colour of the screen out.")},
            {QStringLiteral("panel"),
             QStringLiteral("As a panel shows it: rgb565, rgb565-dithered, rgb332 or grey; full."),
             QStringLiteral("COLORS")},
            {QStringLiteral("compare"),
             QStringLiteral("Compares with the pictures in this folder and writes SCREEN.diff.png where they differ."),
             QStringLiteral("FOLDER")},
            {QStringLiteral("tolerance"),
             QStringLiteral("The greatest difference of a colour channel that still agrees, 0 to 255; 0."),
             QStringLiteral("F")}};
}

ApplicationKind RenderCommand::applicationKind() const
{
    return ApplicationKind::Widgets;
}

bool RenderCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    if (!reader.positional({QStringLiteral("PROJECT")}, {&m_project})
        || !reader.required(QStringLiteral("output"), &m_output)
        || !reader.optional(QStringLiteral("screen"), &m_screen)
        || !reader.real(QStringLiteral("scale"), SmallestScale, LargestScale, &m_scale)
        || !reader.optional(QStringLiteral("compare"), &m_reference)
        || !reader.real(QStringLiteral("tolerance"), 0, 255, &m_tolerance) || !readFormat(parser, message))
        return false;
    if (m_reference.isEmpty() && parser.isSet(QStringLiteral("tolerance"))) {
        *message = LocalizationHelper::coreString(QStringLiteral("The option --tolerance is for --compare."));
        return false;
    }
    if (!m_reference.isEmpty() && isSameFolder(m_reference, m_output)) {
        *message =
            LocalizationHelper::coreString(QStringLiteral("The folders of --output and --compare are the same."));
        return false;
    }
    return true;
}

bool RenderCommand::readFormat(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    QString format = QStringLiteral("png");
    QString panel;
    QString elements;
    if (!reader.optional(QStringLiteral("format"), &format) || !reader.optional(QStringLiteral("panel"), &panel)
        || !reader.optional(QStringLiteral("elements"), &elements))
        return false;
    m_isDrawing = format == QLatin1String("svg");
    m_ground = !parser.isSet(QStringLiteral("transparent"));
    m_elements = elements.split(QLatin1Char(','), Qt::SkipEmptyParts);
    m_panel = PanelColors::named(panel);
    if (!m_isDrawing && format != QLatin1String("png"))
        *message = LocalizationHelper::coreString(QStringLiteral("The format is png or svg, not \"%1\".")).arg(format);
    else if (!panel.isEmpty() && !m_panel)
        *message =
            LocalizationHelper::coreString(
                QStringLiteral("The colours of --panel are full, rgb565, rgb565-dithered, rgb332 or grey, not \"%1\"."))
                .arg(panel);
    else if (m_isDrawing && (m_panel || !m_reference.isEmpty()))
        *message =
            LocalizationHelper::coreString(QStringLiteral("The options --panel and --compare are for --format png."));
    else if (m_panel && !m_ground)
        *message = LocalizationHelper::coreString(QStringLiteral("A panel shows nothing that is transparent."));
    else if (!m_elements.isEmpty() && m_screen.isEmpty())
        *message = LocalizationHelper::coreString(QStringLiteral("The option --elements is for --screen."));
    return message->isEmpty();
}

ExitStatus RenderCommand::run(StandardOutput& output)
{
    std::unique_ptr<Project> opened = ProjectArgument::open(m_project);
    if (!opened)
        return ExitStatus::Fault;
    if (!ProjectArgument::isOutside(*opened, m_output))
        return ExitStatus::Fault;
    EditSession session(std::move(opened));
    QVector<Screen*> screens = session.project()->screens();
    if (!m_screen.isEmpty()) {
        Screen* screen = session.project()->screen(m_screen);
        if (!screen) {
            ProjectArgument::printMissingScreen(m_project, m_screen);
            return ExitStatus::Fault;
        }
        screens = {screen};
    }

    PictureFiles pictures(m_output);
    for (Screen* screen : std::as_const(screens)) {
        if (!drawScreen(session, screen, pictures, output))
            return ExitStatus::Fault;
    }
    QString message;
    if (output.hasFailed() || !pictures.commit(&message)) {
        if (!message.isEmpty())
            Messages::print(message);
        return ExitStatus::Fault;
    }
    return m_agrees ? ExitStatus::Done : ExitStatus::Fault;
}

bool RenderCommand::drawScreen(EditSession& session, Screen* screen, PictureFiles& pictures, StandardOutput& output)
{
    screen->readContent();
    const QString id = screen->getIdName();
    if (!screen->contentError().isEmpty()) {
        Messages::print(QStringLiteral("screens/%1.json: %2").arg(id, screen->contentError()));
        return false;
    }
    RenderOptions options;
    options.scale = m_scale;
    options.ground = m_ground;
    QString message;
    CanvasScene* scene = session.scene(screen); // makes the items of the elements, too
    if (!findElements(screen, &options.only))
        return false;
    if (m_isDrawing) {
        const QByteArray svg = ScreenSvg::draw(scene, options);
        if (!pictures.add(id + QLatin1String(".svg"), svg, &message)) {
            Messages::print(message);
            return false;
        }
        return true;
    }
    QImage picture = ScreenRenderer::render(scene, options);
    if (m_panel)
        picture = PanelColors::shown(picture, *m_panel);
    if (picture.isNull()) {
        Messages::print(LocalizationHelper::coreString(
                            QStringLiteral("%1: there is not enough memory for a picture of %2 pixels at scale %3"))
                            .arg(id, ValueConversion::toString(screen->size()), ValueConversion::toString(m_scale)));
        return false;
    }
    if (!pictures.add(id + QLatin1String(".png"), picture, &message)) {
        Messages::print(message);
        return false;
    }
    if (!m_reference.isEmpty() && !compareScreen(id, picture, pictures, output))
        m_agrees = false;
    return true;
}

bool RenderCommand::findElements(Screen* screen, QList<DesignerObject*>* elements) const
{
    for (const QString& id : m_elements) {
        DesignerObject* element = screen->element(id);
        if (!element || !element->graphicsItem()) {
            Messages::print(LocalizationHelper::coreString(QStringLiteral("The screen \"%1\" has no element \"%2\"."))
                                .arg(screen->getIdName(), id));
            return false;
        }
        elements->append(element);
    }
    return true;
}

bool RenderCommand::compareScreen(const QString& screenId, const QImage& picture, PictureFiles& pictures,
                                  StandardOutput& output) const
{
    const QString file = QDir(m_reference).filePath(screenId + QLatin1String(".png"));
    QString message;
    const PictureComparison comparison = PictureComparison::withFile(picture, file, &message);
    if (!comparison.isValid()) {
        Messages::print(message);
        return false;
    }
    output.writeLine(QStringLiteral("%1: maximum %2, differing %3")
                         .arg(screenId)
                         .arg(comparison.maximum())
                         .arg(ValueConversion::toQmlString(comparison.share(), 6)));
    const bool agrees = comparison.maximum() <= m_tolerance;
    const QString differenceFile = screenId + QLatin1String(".diff.png");
    if (comparison.maximum() == 0) {
        // One of an earlier comparison would tell of a difference that is gone.
        pictures.remove(differenceFile);
    } else if (!pictures.add(differenceFile, comparison.differencePicture(), &message)) {
        Messages::print(message);
        return false;
    }
    if (!agrees) {
        Messages::print(LocalizationHelper::coreString(
                            QStringLiteral("%1: differs from %2 by up to %3 of 255, more than the tolerance of %4"))
                            .arg(screenId, file)
                            .arg(comparison.maximum())
                            .arg(ValueConversion::toString(m_tolerance)));
    }
    return agrees;
}

} // namespace Korvex::Meridane::Designer
