#include "tests/accessibility/WindowTour.h"

#include "app/AppSettings.h"
#include "app/DialogPrompts.h"
#include "app/MainWindow.h"
#include "app/ProjectDocument.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QDockWidget>
#include <QFileDialog>
#include <QTest>
#include <QTimer>

namespace Korvex::Meridane::Designer::Test {

namespace {

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = to + file.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(file, target);
    }
}

/// A window of ours that waits for an answer, or null.
QWidget* openDialog(const QWidget* window)
{
    if (QApplication::activeModalWidget())
        return QApplication::activeModalWidget();
    if (QApplication::activePopupWidget())
        return QApplication::activePopupWidget();
    for (QWidget* other : QApplication::topLevelWidgets()) {
        if (other != window && other->isVisible() && other->windowType() == Qt::Dialog)
            return other;
    }
    return nullptr;
}

void close(QWidget* dialog)
{
    if (auto* asking = qobject_cast<QDialog*>(dialog))
        asking->reject();
    else
        dialog->close();
}

} // namespace

WindowTour::WindowTour()
    : m_prompts(std::make_unique<DialogPrompts>())
{
    QFile::remove(AppSettings::filePath());
    copyFolder(QStringLiteral(MERIDANE_SOURCE_DIR "/examples/thermostat"), m_folder.path());
    m_window = std::make_unique<MainWindow>(m_prompts.get());
    m_prompts->setWindow(m_window.get());
    m_window->resize(1600, 1000);
    if (!m_window->openProject(m_folder.path()))
        qFatal("the example cannot be opened");
    m_window->show();
    if (!QTest::qWaitForWindowExposed(m_window.get()))
        qFatal("the window is not shown");
    for (auto* dock : m_window->findChildren<QDockWidget*>())
        dock->show();
    QTest::qWait(50);
}

WindowTour::~WindowTour() = default;

int WindowTour::visitAll(const Visitor& visit)
{
    m_stops = 0;
    const Visitor counting = [this, &visit](QWidget* window, const QString& where) {
        ++m_stops;
        visit(window, where);
    };
    counting(m_window.get(), QStringLiteral("window"));
    visitElements(counting);
    visitPages(counting);
    visitDialogs(counting);
    return m_stops;
}

void WindowTour::visitElements(const Visitor& visit)
{
    EditSession* session = m_window->document()->session();
    QList<DesignerObject*> all;
    for (const QString& className : DesignerFactory::instance()->elementClassNames()) {
        DesignerObject* added = nullptr;
        session->addElement(className, session->currentScreen(), {}, {}, &added);
        session->setSelection({added});
        QCoreApplication::processEvents();
        visit(m_window.get(), className);
        all.append(added);
    }
    visitColorPopup(visit);
    session->setSelection(all);
    QCoreApplication::processEvents();
    visit(m_window.get(), QStringLiteral("several elements"));
}

void WindowTour::visitColorPopup(const Visitor& visit)
{
    for (auto* swatch : m_window->findChildren<ColorSwatch*>()) {
        if (!swatch->isVisible())
            continue;
        swatch->click();
        for (QWidget* popup : QApplication::topLevelWidgets()) {
            if (!popup->isVisible() || !qobject_cast<ColorPopup*>(popup))
                continue;
            visit(popup, QStringLiteral("color popup"));
            popup->close();
            return;
        }
    }
    qFatal("no color can be chosen");
}

void WindowTour::visitPages(const Visitor& visit)
{
    for (const char* name : {"help.findCommand", "file.startPage"}) {
        auto* action = m_window->findChild<QAction*>(QLatin1String(name));
        if (!action)
            qFatal("there is no action %s", name);
        action->trigger();
        QTest::qWait(20);
        visit(m_window.get(), QLatin1String(name));
        if (auto* palette = m_window->findChild<QWidget*>(QStringLiteral("CommandPalette")))
            palette->close();
    }
}

void WindowTour::visitDialogs(const Visitor& visit)
{
    QList<QAction*> actions;
    for (QAction* action : m_window->findChildren<QAction*>()) {
        const bool asks = action->text().endsWith(QChar(0x2026)) || action->text().endsWith(QLatin1String("…⟧"));
        if (asks && action->isEnabled() && action->objectName().contains(QLatin1Char('.')))
            actions.append(action);
    }
    QTimer closer;
    QString where;
    QObject::connect(&closer, &QTimer::timeout, m_window.get(), [&] {
        QWidget* dialog = openDialog(m_window.get());
        if (!dialog)
            return;
        closer.stop();
        if (!qobject_cast<QFileDialog*>(dialog))
            visit(dialog, where);
        close(dialog);
        closer.start();
    });
    closer.start(20);
    for (QAction* action : actions) {
        where = action->objectName();
        action->trigger();
        for (int i = 0; i < 5 && !openDialog(m_window.get()); ++i)
            QTest::qWait(10);
        for (int i = 0; i < 50 && openDialog(m_window.get()); ++i)
            QTest::qWait(20);
    }
}

} // namespace Korvex::Meridane::Designer::Test
