#include "app/HelpActions.h"

#include "app/CoreText.h"
#include "app/ShortcutsDialog.h"
#include "app/WindowAction.h"

#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>

namespace Korvex::Meridane::Designer {

HelpActions::HelpActions(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{}

void HelpActions::addTo(QMenu* menu)
{
    auto* shortcuts =
        new WindowAction(QStringLiteral("keyboard"), coreText("&Keyboard Shortcuts"), {QKeySequence(Qt::Key_F1)}, this);
    auto* about = new WindowAction({}, coreText("&About Meridane Designer"), QList<QKeySequence>(), this);
    connect(shortcuts, &QAction::triggered, this, &HelpActions::showShortcuts);
    connect(about, &QAction::triggered, this, &HelpActions::showAbout);
    menu->addAction(shortcuts);
    menu->addSeparator();
    menu->addAction(about);
}

void HelpActions::showShortcuts()
{
    ShortcutsDialog dialog(m_window);
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
