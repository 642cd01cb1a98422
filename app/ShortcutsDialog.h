#pragma once

#include <QDialog>

class QMainWindow;
class QMenu;
class QTreeWidget;

namespace Korvex::Meridane::Designer {

/// Lists the keys of the window, read from its menus, and what mouse and keys do on the canvas.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ShortcutsDialog(QMainWindow* window);

private:
    void addMenu(const QMenu* menu, const QString& title);
    void addCanvas();

    QTreeWidget* m_list;
};

} // namespace Korvex::Meridane::Designer
