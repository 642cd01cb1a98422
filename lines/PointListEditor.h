#pragma once

#include "host/core/editors/StandardEditor.h"

#include "lines/PointListPlace.h"

#include <QHash>
#include <QPointer>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class PointListWidget;

/**
 * The editor of the points of an irregular polygon. An edit is one step, "Change Point List", which also corrects the
 * element's position so that the polygon stays in its place on the canvas, and the ratio that the element keeps.
 *
 * A list that the widget cannot show (fewer than 3 or more than 20 points, or several elements with different ones) is
 * never overwritten: a line says why there is nothing to edit. While a coordinate's field has the focus, its point is
 * marked on the canvas.
 */
class PointListEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit PointListEditor(QWidget* parent);
    ~PointListEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] PointListWidget* pointListWidget() const { return m_widget; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    /// What an edit changes of an element or goes by, as value strings.
    struct State
    {
        QString points;
        QString position;
        QString ratio;
        QString rotation; // of the element; not changed

        [[nodiscard]] bool operator==(const State& other) const = default;
    };
    /// An element whose points are being turned: its state before, and the one that the last turn left.
    struct Turn
    {
        State before;
        State after;
    };

    void onUserModified();
    void rememberBase();
    void markPoint(int index);
    void unmarkPoints();
    static void follow(const State& before, KeptPlace kept, State& after);
    [[nodiscard]] State stateBefore(const DesignerProperty& property) const;
    [[nodiscard]] static State stateOf(const DesignerProperty& property);

    PointListWidget* m_widget;
    QString m_base; // the value of property() that the widget was loaded or saved with
    QHash<const DesignerProperty*, Turn> m_turns; // since the widget was loaded
    QList<QPointer<DesignerObject>> m_marked; // the elements with a marked point
};

} // namespace Korvex::Meridane::Designer
