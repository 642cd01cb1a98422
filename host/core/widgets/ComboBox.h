#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtWidgets/QComboBox>

namespace Korvex::Meridane::Designer {
/** A list of choices, each known by a key and shown by a text. The wheel acts only on the focused box. */
class MERIDANE_CORE_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** @param items key to shown text, in the order of the keys. The first is current. */
    explicit ComboBox(const QMap<QString, QString>& items, QWidget* parent = nullptr);

    /** Adds a choice at the end, for lists whose order is not that of their keys. */
    void addKeyedItem(const QString& key, const QString& text);

    /** The key of the current choice; empty when there is none. */
    [[nodiscard]] QString currentItemKey() const;

    /** Makes the choice with @p key current, silently; without such a choice none is current (index −1). */
    void setCurrentItemKey(const QString& key);

    /** Shows "—" for several values that differ: no choice is current until the user or setCurrentItemKey() picks. */
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

Q_SIGNALS:
    /** The user has picked another choice. */
    void userModified();
    void focusedIn();
    void focusedOut();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void onActivated();

    QString m_key; // the last choice that was reported or set
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
