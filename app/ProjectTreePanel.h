#pragma once

#include <QWidget>

class QLineEdit;

namespace Korvex::Meridane::Designer {

class ProjectTree;

/// The project tree with a line above it that filters the rows, and buttons that open and close all of them.
class ProjectTreePanel : public QWidget
{
    Q_OBJECT

public:
    /// Takes \a tree into itself.
    explicit ProjectTreePanel(ProjectTree* tree, QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit* filterLine() const { return m_filter; }

protected:
    /// Ctrl+F in the tree goes to the filter; Escape there empties it and goes back.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ProjectTree* m_tree;
    QLineEdit* m_filter;
};

} // namespace Korvex::Meridane::Designer
