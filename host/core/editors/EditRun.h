#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace Korvex::Meridane::Designer {

/**
 * Knows which edits of a number field or slider belong together as one undo step.
 *
 * Steps that follow each other (arrow keys, wheel, step buttons) are one run; typing ends it, as does the focus leaving.
 * Each drag of a slider is a run of its own. What is typed is never joined with anything: a number counts when it is
 * committed.
 */
class EditRun : public QObject
{
    Q_OBJECT

public:
    explicit EditRun(QObject* parent);
    ~EditRun() override;

    /// Observes the input of \a widget, which lives as long as the run's parent.
    void watch(QWidget* widget);
    /// The merge key of an edit made now; empty for an edit on its own.
    [[nodiscard]] const QString& key() const { return m_key; }

    /// A run begins, whatever was before; for widgets that announce their drags themselves.
    void begin();
    /// The run is over.
    void end() { m_key.clear(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void goOn();

    QString m_key;
};

} // namespace Korvex::Meridane::Designer
