#pragma once

#include "app/AppSettings.h"
#include "app/MainWindow.h"
#include "app/ProjectDocument.h"
#include "app/Workspace.h"
#include "tests/app/FakePrompts.h"

#include "host/core/canvas/EditSession.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace Korvex::Meridane::Designer::Test {

/// The window of the application on an untitled project, active and with answers to its questions.
class TestWindow
{
public:
    /// Gives the program a folder of its own for settings and caches, which other tests that run meanwhile do not touch.
    static bool isolate()
    {
        static const QTemporaryDir home;
        return qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8())
               && qputenv("XDG_CACHE_HOME", home.filePath(QStringLiteral("cache")).toUtf8()) && home.isValid();
    }

    /// \a fresh: with the settings that the program comes with; else with those of the window before.
    explicit TestWindow(bool fresh = true)
    {
        if (fresh)
            QFile::remove(AppSettings::filePath());
        window = std::make_unique<MainWindow>(&prompts);
        window->resize(1280, 800);
    }

    /// Shows the window and waits until it is laid out; false when that does not happen.
    bool show()
    {
        window->show();
        QApplication::setActiveWindow(window.get());
        return QTest::qWaitForWindowActive(window.get());
    }

    [[nodiscard]] EditSession* session() const { return window->document()->session(); }

    /// The action called \a name, or null.
    [[nodiscard]] QAction* action(const char* name) const { return window->findChild<QAction*>(QLatin1String(name)); }

    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QTemporaryDir folder;
    FakePrompts prompts;
    std::unique_ptr<MainWindow> window; // goes before the prompts
};

} // namespace Korvex::Meridane::Designer::Test
