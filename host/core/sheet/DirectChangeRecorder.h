#pragma once

#include "host/core/commands/ChangeRecording.h"

#include <QObject>

class QWidget;

namespace Korvex::Meridane::Designer {

/**
 * Records the changes that editors make directly, without a command, while they handle an event of the user.
 *
 * An editor of several objects may change properties beside the one it edits. Those changes belong to the step that the
 * same event makes; what no step took is announced when the event has been handled.
 *
 * Works by handling each input event below the root widget inside a ChangeRecording; dialogs and popups that belong to
 * a widget below it are included.
 */
class DirectChangeRecorder : public QObject
{
    Q_OBJECT

public:
    explicit DirectChangeRecorder(QWidget* root);
    ~DirectChangeRecorder() override;

    /// Inactive recorders cost nothing.
    void setActive(bool active);
    /// What was changed directly so far by the event that is being handled; it then counts as taken.
    [[nodiscard]] QVector<PropertyChange> take();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// An event has been handled and these changes were not taken.
    void changedDirectly(const QVector<Korvex::Meridane::Designer::PropertyChange>& changes);

private:
    [[nodiscard]] bool isBelowRoot(const QObject* object) const;

    QWidget* m_root;
    ChangeRecording* m_recording = nullptr; // of the event that is being handled
    bool m_active = false;
};

} // namespace Korvex::Meridane::Designer
