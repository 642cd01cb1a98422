#include "runtime/viewer/DisplayViewer.h"

#include "runtime/viewer/ViewerOptions.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlError>

#include <cstdio>

namespace Korvex::Meridane::Display {
namespace {
/** The longest wait for the first frame, in milliseconds. */
constexpr int FrameTimeout = 30000;
} // namespace

DisplayViewer::DisplayViewer(const ViewerOptions& options)
    : m_folder(options.folder)
{
    QQmlEngine* engine = m_view.engine();
    engine->setOutputWarningsToStandardError(false);
    connect(engine, &QQmlEngine::warnings, this, &DisplayViewer::report);
    engine->addImportPath(QCoreApplication::applicationDirPath() + QLatin1String("/../qml"));
    for (const QString& path : options.importPaths) {
        engine->addImportPath(QDir(path).absolutePath());
    }
    if (!options.screen.isEmpty()) {
        m_view.setInitialProperties({{QStringLiteral("currentScreen"), options.screen}});
    }
    m_view.setResizeMode(QQuickView::SizeViewToRootObject);
    m_view.setTitle(options.title.isEmpty() ? QFileInfo(QDir(m_folder).absolutePath()).fileName() : options.title);
}

bool DisplayViewer::load()
{
    const QFileInfo file(QDir(m_folder), QStringLiteral("Main.qml"));
    if (!file.isFile()) {
        fail(QStringLiteral("%1: there is no such file").arg(file.filePath()));
        return false;
    }
    m_view.setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
    if (m_view.status() != QQuickView::Ready || !m_view.rootObject()) {
        report(m_view.errors());
        fail(QStringLiteral("%1: cannot be run").arg(file.filePath()));
        return false;
    }
    m_view.setMinimumSize(m_view.size());
    m_view.setMaximumSize(m_view.size());
    return true;
}

void DisplayViewer::show()
{
    m_view.show();
}

bool DisplayViewer::grab(const QString& fileName)
{
    QEventLoop loop;
    QTimer::singleShot(FrameTimeout, &loop, [&loop] { loop.exit(1); });
    connect(&m_view, &QQuickWindow::frameSwapped, &loop, [&loop] { loop.exit(0); });
    m_view.show();
    if (loop.exec() != 0) {
        fail(QStringLiteral("%1: no frame was shown").arg(m_folder));
        return false;
    }
    QByteArray png;
    QBuffer buffer(&png);
    const QImage frame = m_view.grabWindow();
    if (frame.isNull() || !buffer.open(QIODevice::WriteOnly) || !frame.save(&buffer, "PNG")) {
        fail(QStringLiteral("%1: the frame cannot be turned into a picture").arg(m_folder));
        return false;
    }
    // Saving replaces what stands there: a picture, but never a device or a pipe.
    if (const QFileInfo target(fileName); target.exists() && !target.isFile()) {
        fail(QStringLiteral("%1: is no file that can be replaced").arg(fileName));
        return false;
    }
    QSaveFile file(fileName);
    // A full disk shows when the data is flushed; committing alone may hide it.
    if (!file.open(QIODevice::WriteOnly) || file.write(png) != png.size() || !file.flush()) {
        file.cancelWriting();
    }
    if (!file.commit()) {
        fail(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
        return false;
    }
    return true;
}

bool DisplayViewer::hasFailed() const
{
    return m_failed;
}

void DisplayViewer::report(const QList<QQmlError>& errors)
{
    for (const QQmlError& error : errors) {
        fail(error.toString());
    }
}

void DisplayViewer::fail(const QString& message)
{
    m_failed = true;
    std::fprintf(stderr, "%s\n", qPrintable(message));
    std::fflush(stderr);
}
} // namespace Korvex::Meridane::Display
