#pragma once

#include <QDialog>

class QMainWindow;
class QMenu;
class QTreeWidget;

namespace Korvex::Meridane::Designer {

struct ListedKey;

/// Lists the keys of the window, read from its menus, and what mouse and keys do on the canvas and in the list of images.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ShortcutsDialog(QMainWindow* window);

private:
    void addMenu(const QMenu* menu, const QString& title);
    void addKeys(const QString& title, const ListedKey* keys, int count);

    QTreeWidget* m_list;
};

} // namespace Korvex::Meridane::Designer
