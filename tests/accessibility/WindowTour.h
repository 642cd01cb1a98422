#pragma once

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

class QWidget;

namespace Korvex::Meridane::Designer {

class DialogPrompts;
class MainWindow;

namespace Test {

/// A tour through everything that the application shows: its window with all panels, the property sheet of each kind of
/// object, and the dialogs that its actions open.
class WindowTour
{
public:
    /// Is shown a window or a dialog; \a where names it for messages.
    using Visitor = std::function<void(QWidget* window, const QString& where)>;

    /// Opens a copy of the example project.
    WindowTour();
    ~WindowTour();
    Q_DISABLE_COPY_MOVE(WindowTour)

    [[nodiscard]] MainWindow* window() const { return m_window.get(); }
    /// Calls \a visit at every stop. How many stops there were.
    int visitAll(const Visitor& visit);

private:
    void visitElements(const Visitor& visit);
    void visitColorPopup(const Visitor& visit);
    void visitPages(const Visitor& visit);
    void visitDialogs(const Visitor& visit);

    QTemporaryDir m_folder;
    std::unique_ptr<DialogPrompts> m_prompts;
    std::unique_ptr<MainWindow> m_window;
    int m_stops = 0;
};

} // namespace Test
} // namespace Korvex::Meridane::Designer
