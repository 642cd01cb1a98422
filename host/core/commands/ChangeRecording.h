#pragma once

#include "host/core/CoreExport.h"

#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/// One recorded change of a value: the value strings before and after.
struct PropertyChange
{
    QSharedPointer<DesignerProperty> property;
    QString before;
    QString after;
};

/**
 * Records every property change that is made while it lives, derived changes included.
 *
 * Recordings nest: an inner one hands what it took to the outer one when it ends, unless take() emptied it. They belong
 * to the GUI thread. Several changes of one property are kept as one, from the first value to the last; a property
 * that is back at its first value is not recorded at all.
 */
class MERIDANE_CORE_EXPORT ChangeRecording
{
public:
    ChangeRecording();
    ~ChangeRecording();
    Q_DISABLE_COPY_MOVE(ChangeRecording)

    /// The innermost recording, or null.
    [[nodiscard]] static ChangeRecording* current();
    void record(const QSharedPointer<DesignerProperty>& property, const QString& before, const QString& after);
    /// What was recorded, in the order of first change; the recording is empty afterwards.
    [[nodiscard]] QVector<PropertyChange> take();

    /// Joins changes that follow each other into one per property, dropping those without effect.
    [[nodiscard]] static QVector<PropertyChange> joined(const QVector<PropertyChange>& changes);

private:
    QVector<PropertyChange> m_changes;
    ChangeRecording* m_outer;
};

} // namespace Korvex::Meridane::Designer
