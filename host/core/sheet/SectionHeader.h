#pragma once

#include "host/core/CoreExport.h"

#include <QAbstractButton>

namespace Korvex::Meridane::Designer {

/// The heading of a section of the property sheet; pressing it folds and unfolds the section. Left folds, Right unfolds.
/// It is checked while the section is open.
class MERIDANE_CORE_EXPORT SectionHeader : public QAbstractButton
{
    Q_OBJECT

public:
    SectionHeader(const QString& key, const QString& title, QWidget* parent);
    ~SectionHeader() override;

    /// The section's key; see SheetSections.
    [[nodiscard]] const QString& key() const { return m_key; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// All values of the section are to be set to their defaults.
    void resetRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void describe();
    void applyFont();

    QString m_key;
};

} // namespace Korvex::Meridane::Designer
