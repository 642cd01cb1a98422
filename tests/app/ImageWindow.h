#pragma once

#include "app/AppSettings.h"
#include "app/CanvasPanel.h"
#include "app/EditActions.h"
#include "app/ImageList.h"
#include "app/ImageListModel.h"
#include "app/ImagePanel.h"
#include "app/MainWindow.h"
#include "app/MessageBar.h"
#include "app/ProjectDocument.h"
#include "app/Workspace.h"
#include "tests/app/FakePrompts.h"
#include "tests/support/TestPictures.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDockWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace Korvex::Meridane::Designer::Test {

/// The application's window with a new project, and files to bring into it.
class ImageWindow
{
public:
    ImageWindow()
    {
        QFile::remove(AppSettings::filePath());
        window = std::make_unique<MainWindow>(&prompts);
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get()))
            qFatal("the window is not shown");
        QTest::qWait(50);
    }

    /// A file outside of the project.
    QString file(const char* name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("a file of the test cannot be written");
        return file.fileName();
    }
    QString picture(const char* name, const QColor& color, const QSize& size = QSize(60, 40)) const
    {
        return file(name, pictureBytes(color, size));
    }
    /// The name of the resource that \a path is imported as.
    QString import(const QString& path) const
    {
        QString id;
        session()->importImage(path, &id);
        return id;
    }
    DesignerObject* addImage(const QString& source, Screen* screen = nullptr) const
    {
        DesignerObject* added = nullptr;
        session()->addElement(QStringLiteral("Image"), screen ? screen : session()->currentScreen(), {},
                              {{QStringLiteral("source"), source}}, &added);
        return added;
    }

    ProjectDocument* document() const { return window->document(); }
    EditSession* session() const { return document()->session(); }
    UndoStack* stack() const { return session()->undoStack(); }
    const QStringList& images() const { return session()->project()->imageResources(); }
    ImagePanel* panel() const { return window->workspace()->images(); }
    ImageList* list() const { return panel()->list(); }
    CanvasView* canvas() const { return window->workspace()->canvas(); }
    QString message() const { return window->messageBar()->text(); }
    const QVector<DesignerObject*>& elements() const { return session()->currentScreen()->childList()->items(); }
    QDockWidget* dock() const { return window->findChild<QDockWidget*>(QStringLiteral("ImagesDock")); }

    /// Brings the panel to the front of its tabs.
    void showPanel() const
    {
        dock()->show();
        dock()->raise();
        QTRY_VERIFY(isPanelSeen());
    }
    /// A panel behind another one counts as visible, but lies outside of the window.
    bool isPanelSeen() const { return !dock()->visibleRegion().isEmpty(); }
    QModelIndex row(const char* image) const { return panel()->model()->indexOf(QString::fromUtf8(image)); }
    QString text(const char* image, int role) const { return row(image).data(role).toString(); }

    static QString value(const DesignerObject* object, const char* property)
    {
        return object->getProperty(QString::fromLatin1(property))->valueString();
    }
    /// The pixel of the canvas at a place of the screen.
    QColor pixel(double x, double y) const
    {
        const QPoint at = canvas()->viewportTransform().map(QPointF(x, y)).toPoint();
        return canvas()->viewport()->grab().toImage().pixelColor(at);
    }
    QPoint viewPoint(double x, double y) const { return canvas()->viewportTransform().map(QPointF(x, y)).toPoint(); }

    FakePrompts prompts;
    std::unique_ptr<MainWindow> window;
    QTemporaryDir folder;
};

} // namespace Korvex::Meridane::Designer::Test
