#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class MessageLabel;

/// The head of the property sheet: the type of what is selected and, for one object, a field with its id, which renames
/// it.
class SheetHeading : public QWidget
{
    Q_OBJECT

public:
    explicit SheetHeading(QWidget* parent);
    ~SheetHeading() override;

    void setSession(EditSession* session);
    void setObjects(const QList<DesignerObject*>& objects);
    /// An id changed; a text that is being typed stays.
    void refresh();

    void arrange(int labelWidth);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QLineEdit* idField() const { return m_id; }
    [[nodiscard]] QString message() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void rename();
    void showId();
    [[nodiscard]] static QString titleOf(const QList<DesignerObject*>& objects);

    QPointer<EditSession> m_session;
    QPointer<DesignerObject> m_object; // the one object, or null for several
    QGridLayout* m_grid;
    QLabel* m_title;
    QLabel* m_idLabel;
    QLineEdit* m_id;
    MessageLabel* m_message;
};

} // namespace Korvex::Meridane::Designer
