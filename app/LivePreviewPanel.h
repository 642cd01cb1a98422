#pragma once

#include <QTimer>
#include <QWidget>

class QFrame;
class QLabel;
class QToolButton;

namespace Korvex::Meridane::Designer {

class CanvasView;
class EditSession;
class LiveContent;
class LiveDisplay;
class LiveView;

/// The running display beside the canvas: its picture, what QML complains about, and a way to start it anew. It runs
/// while the panel can be seen.
class LivePreviewPanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session and \a canvas outlive the panel. \a program: as for LiveDisplay.
    LivePreviewPanel(EditSession* session, CanvasView* canvas, const QString& program = {}, QWidget* parent = nullptr);
    ~LivePreviewPanel() override;

    [[nodiscard]] LiveDisplay* display() const { return m_display; }
    [[nodiscard]] LiveView* view() const { return m_view; }
    /// What is shown beside the picture; empty for nothing.
    [[nodiscard]] QString message() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QWidget* makeNotice();
    void setMessage(const QString& message, bool offersRestart);
    void showFrame();
    void sendScale();

    EditSession* m_session;
    LiveDisplay* m_display;
    LiveContent* m_content;
    LiveView* m_view;
    QFrame* m_notice;
    QLabel* m_text;
    QToolButton* m_restart;
    QTimer m_scaleTimer;
    QTimer m_stopTimer;
};

} // namespace Korvex::Meridane::Designer
