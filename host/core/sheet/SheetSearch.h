#pragma once

#include "host/core/CoreExport.h"

#include <QLineEdit>

namespace Korvex::Meridane::Designer {

/// The line at the top of the property sheet that filters its rows. Escape leaves it, Enter and Down go to what was found.
class MERIDANE_CORE_EXPORT SheetSearch : public QLineEdit
{
    Q_OBJECT

public:
    explicit SheetSearch(QWidget* parent);
    ~SheetSearch() override;

Q_SIGNALS:
    /// Escape: the search is over.
    void cancelled();
    /// The user wants to go to the first row that was found.
    void resultRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace Korvex::Meridane::Designer
