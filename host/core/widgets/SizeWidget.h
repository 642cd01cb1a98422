#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/NumberOperation.h"

#include <QtCore/QSizeF>
#include <QtWidgets/QWidget>

namespace Korvex::Meridane::Designer {
class LockToggle;
class SpinBox;

/** Two number fields for width and height, with an optional lock for their ratio between them. */
class MERIDANE_CORE_EXPORT SizeWidget : public QWidget
{
    Q_OBJECT

public:
    /** Two decimals, from 0 to 99999, the suffix " px", no lock. */
    explicit SizeWidget(QWidget* parent = nullptr);

    void setDecimals(int decimals);
    /** Limits what the user can enter; a size outside is shown as it is. */
    void setMinimum(const QSizeF& minimum);
    void setMaximum(const QSizeF& maximum);
    void setSuffix(const QString& suffix);

    [[nodiscard]] QSizeF value() const;
    /** Shows @p size, silently. */
    void setValue(const QSizeF& size);

    /** See SpinBox; each dimension has an operation and a mixed state of its own. */
    void setRelativeInputAllowed(bool allowed);
    [[nodiscard]] NumberOperation widthOperation() const;
    [[nodiscard]] NumberOperation heightOperation() const;
    void setMixed(bool widthIsMixed, bool heightIsMixed);

    /** Shows a lock between the fields. What a locked ratio means is the caller's. */
    void setLockVisible(bool visible);
    [[nodiscard]] bool isLocked() const;
    /** Shows the state, silently. */
    void setLocked(bool locked);

    [[nodiscard]] SpinBox* widthField() const { return m_width; }
    [[nodiscard]] SpinBox* heightField() const { return m_height; }
    [[nodiscard]] LockToggle* lockToggle() const { return m_lock; }

Q_SIGNALS:
    /** The user has changed one dimension; each is followed by userModified(). */
    void userModifiedWidth();
    void userModifiedHeight();
    void userModified();
    /** The user has pressed the lock. */
    void userModifiedLock();
    void focusedIn();
    void focusedOut();

private:
    SpinBox* m_width;
    SpinBox* m_height;
    LockToggle* m_lock;
};
} // namespace Korvex::Meridane::Designer
