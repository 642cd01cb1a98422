#pragma once

#include "app/UpdatePace.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLineEdit;
class QToolButton;

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
class EditSession;
class QmlTextView;
class ScreenChanges;
class ScreenQml;

/// The QML of the current screen or of what is selected, as an export would write it; it follows every change, and what a
/// running gesture would write. In the text of the screen the lines of the selection are marked, and a click on a line
/// selects its element.
class QmlPanel : public QWidget
{
    Q_OBJECT

public:
    enum class Subject
    {
        Screen,
        Selection
    };

    /// \a session and \a canvas outlive the panel.
    QmlPanel(EditSession* session, CanvasView* canvas, QWidget* parent = nullptr);
    ~QmlPanel() override;

    [[nodiscard]] Subject subject() const { return m_subject; }
    void setSubject(Subject subject);
    [[nodiscard]] QmlTextView* text() const { return m_text; }
    [[nodiscard]] QLineEdit* searchField() const { return m_search; }
    /// Copies the selected part of the text, or all of it.
    void copy() const;

Q_SIGNALS:
    /// A line of \a object was chosen.
    void objectChosen(DesignerObject* object);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeTools();
    void refresh();
    [[nodiscard]] bool showsCurrentScreen() const;
    void updateScreen();
    void updateSelection();
    void showAllLines(const QStringList& lines);
    void mark(bool reveals);
    void choose(int line);
    void search(bool backward, bool fromCursor);

    EditSession* m_session;
    ScreenChanges* m_changes;
    QmlTextView* m_text;
    QComboBox* m_switch;
    QLineEdit* m_search;
    std::unique_ptr<ScreenQml> m_screenQml; // what the text shows; null while it shows something else
    QStringList m_selectionLines{QString()}; // what the text shows while it is no screen's; a text has a line
    Subject m_subject = Subject::Screen;
    UpdatePace m_pace;
    bool m_choosing = false; // the selection follows a click into the text
};

} // namespace Korvex::Meridane::Designer
