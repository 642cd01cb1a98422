#pragma once

#include <QWidget>

class QAction;
class QListWidget;

namespace Korvex::Meridane::Designer {

class EditSession;

/**
 * The project's font files: each with a sample line, its name and the families that it holds. What is used cannot be
 * removed; the places are named then.
 */
class FontPanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session outlives the panel.
    explicit FontPanel(EditSession* session, QWidget* parent = nullptr);

    [[nodiscard]] QListWidget* list() const { return m_list; }
    /// The file name of the selected font; empty without one.
    [[nodiscard]] QString selectedFont() const;
    void selectFont(const QString& font);

    [[nodiscard]] QAction* removeAction() const { return m_remove; }
    [[nodiscard]] QAction* usesAction() const { return m_uses; }

    /// Copies \a files into the project.
    void importFiles(const QStringList& files);

Q_SIGNALS:
    /// Font files are to be chosen and imported.
    void importRequested();
    /// The places that use \a font are wanted.
    void usesRequested(const QString& font);
    void refused(const QString& message);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    QAction* make(const char* icon, const char* text, const char* hint, void (FontPanel::*run)());
    void refill();
    void remove();
    void showUses();
    void updateActions();

    EditSession* m_session;
    QListWidget* m_list;
    QAction* m_import;
    QAction* m_uses;
    QAction* m_remove;
};

} // namespace Korvex::Meridane::Designer
