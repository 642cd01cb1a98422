#include "app/HelpActions.h"

#include "app/CoreText.h"
#include "app/MessageBar.h"
#include "app/ProgramFiles.h"
#include "app/ShortcutsDialog.h"
#include "app/WindowAction.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>

namespace Korvex::Meridane::Designer {

HelpActions::HelpActions(QMainWindow* window, ShortcutSettings* shortcuts, MessageBar* messages)
    : QObject(window)
    , m_window(window)
    , m_shortcuts(shortcuts)
    , m_messages(messages)
{}

void HelpActions::addTo(QMenu* menu)
{
    const auto add = [this, menu](const char* name, const char* icon, const QString& text,
                                  const QList<QKeySequence>& shortcuts, auto run) {
        auto* action = new WindowAction(QString::fromLatin1(icon), text, shortcuts, this);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, run);
        menu->addAction(action);
    };
    add("help.findCommand", "command", coreText("&Find Command…"),
        {QKeySequence(Qt::CTRL | Qt::Key_K), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P)},
        &HelpActions::commandsRequested);
    add("help.showShortcuts", "keyboard", coreText("&Keyboard Shortcuts…"), {QKeySequence(Qt::CTRL | Qt::Key_F1)},
        &HelpActions::showShortcuts);
    menu->addSeparator();
    add("help.showGuide", "guide", coreText("User &Guide"), {QKeySequence(Qt::Key_F1)}, &HelpActions::showGuide);
    menu->addSeparator();
    add("help.showAbout", "info", coreText("&About Meridane Designer"), {}, &HelpActions::showAbout);
}

QString HelpActions::guideFile()
{
    const QString folder = ProgramFiles::folder(ProgramFiles::Kind::Guide);
    for (const char* name : {"index.html", "README.html", "index.md", "README.md"}) {
        QString file = QDir(folder).filePath(QLatin1String(name));
        if (!folder.isEmpty() && QFileInfo(file).isFile())
            return file;
    }
    return {};
}

void HelpActions::showGuide()
{
    const QString file = guideFile();
    // A file of this machine and nothing else: no address of the network is ever opened.
    if (file.isEmpty() || !QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        m_messages->showMessage(
            file.isEmpty()
                ? coreText("The user guide is not installed.")
                : coreText("No program shows the user guide. It is in \"%1\".").arg(QDir::toNativeSeparators(file)),
            MessageBar::Kind::Warning);
    }
}

void HelpActions::showShortcuts()
{
    ShortcutsDialog dialog(m_window, m_shortcuts);
    dialog.exec();
}

void HelpActions::showAbout()
{
    QMessageBox box(QMessageBox::NoIcon, coreText("About Meridane Designer"),
                    coreText("Meridane Designer %1").arg(QStringLiteral(MERIDANE_VERSION)), QMessageBox::Ok, m_window);
    box.setInformativeText(coreText("Lays out the screens of small panel displays and exports them as QML.\n\n"
                                    "Running on Qt %1.")
                               .arg(QString::fromLatin1(qVersion())));
    box.setIconPixmap(m_window->windowIcon().pixmap(QSize(64, 64), m_window->devicePixelRatioF()));
    box.exec();
}

} // namespace Korvex::Meridane::Designer
