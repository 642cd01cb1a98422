#pragma once

#include <QObject>

class QAction;
class QDockWidget;
class QMenu;

namespace Korvex::Meridane::Designer {

class DevicePanel;
class LivePreviewPanel;
class QmlPanel;
class WindowPanels;
class Workspace;

/// The panels that show what becomes of the work: its QML, the running display, and what the panel will show. They are
/// closed at the start, and cost nothing while they are.
class ResultPanels : public QObject
{
    Q_OBJECT

public:
    /// Adds the panels to the window. \a panels outlive the object.
    explicit ResultPanels(WindowPanels* panels, QObject* parent = nullptr);

    /// Puts the panels behind others in their window: those with pictures behind \a side, that of the QML behind \a below.
    void arrange(QDockWidget* side, QDockWidget* below);
    /// Adds an action for each panel that shows or hides it.
    void addTo(QMenu* menu);
    /// What the panels show; null: nothing.
    void setWorkspace(Workspace* workspace);

    [[nodiscard]] QDockWidget* qmlDock() const { return m_qmlDock; }
    [[nodiscard]] QDockWidget* previewDock() const { return m_previewDock; }
    [[nodiscard]] QDockWidget* deviceDock() const { return m_deviceDock; }
    // Null without a workspace.
    [[nodiscard]] QmlPanel* qml() const { return m_qml; }
    [[nodiscard]] LivePreviewPanel* preview() const { return m_preview; }
    [[nodiscard]] DevicePanel* device() const { return m_device; }

private:
    [[nodiscard]] QAction* makeAction(const char* name, const char* icon, const QString& text,
                                      const QKeySequence& shortcut, QDockWidget* dock);

    QDockWidget* m_qmlDock;
    QDockWidget* m_previewDock;
    QDockWidget* m_deviceDock;
    QmlPanel* m_qml = nullptr;
    LivePreviewPanel* m_preview = nullptr;
    DevicePanel* m_device = nullptr;
    QList<QAction*> m_actions;
};

} // namespace Korvex::Meridane::Designer
