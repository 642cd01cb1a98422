#pragma once

#include <QListView>

namespace Korvex::Meridane::Designer {

class EditSession;
class Screen;
class ScreenListModel;

/**
 * The screens of the project with thumbnails. A double click or Enter shows one, F2 renames it in place, dragging and
 * Ctrl+Shift+Up and Down move it.
 *
 * What is to be done with a screen by menu or key is asked for by signals.
 */
class ScreensPanel : public QListView
{
    Q_OBJECT

public:
    /// \a session outlives the panel.
    explicit ScreensPanel(EditSession* session, QWidget* parent = nullptr);
    ~ScreensPanel() override;

    [[nodiscard]] ScreenListModel* screenModel() const { return m_model; }
    /// The screen of the current row, or null.
    [[nodiscard]] Screen* currentRow() const;
    /// Opens the editor for the name of \a screen.
    void rename(Screen* screen);

Q_SIGNALS:
    /// The menu of \a screen (null: beside the rows) is wanted at \a globalPos.
    void menuRequested(Screen* screen, const QPoint& globalPos);
    void removalRequested(Screen* screen);
    void refused(const QString& message);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void show(const QModelIndex& index);
    void moveCurrent(int steps);

    EditSession* m_session;
    ScreenListModel* m_model;
};

} // namespace Korvex::Meridane::Designer
