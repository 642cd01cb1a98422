#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class PropertySheet;

/// The actions that work on the property sheet: finding a property, and setting the one in use to its default.
class SheetActions : public QObject
{
    Q_OBJECT

public:
    explicit SheetActions(QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The sheet that the actions work on; null: none.
    void setSheet(PropertySheet* sheet);

Q_SIGNALS:
    /// The sheet is to be used; its panel is to be shown first.
    void sheetRequested();

private:
    void find();
    void reset();
    void updateReset();

    QPointer<PropertySheet> m_sheet;
    QAction* m_find;
    QAction* m_reset;
};

} // namespace Korvex::Meridane::Designer
