#pragma once

#include <QScrollArea>
#include <QStringList>

class QLabel;
class QListWidgetItem;

namespace Korvex::Meridane::Designer {

class CardGrid;
class RecentFiles;

/// What the window shows in place of the canvas before there is something to work on: new projects for common panels, the
/// projects that were open last, and examples.
class StartPage : public QScrollArea
{
    Q_OBJECT

public:
    /// \a recent outlives the page. \a examplesFolder: each folder in it that holds a project is offered.
    StartPage(RecentFiles* recent, const QString& examplesFolder, QWidget* parent = nullptr);

    /// Shows what has become of the recent projects meanwhile.
    void refresh();

    [[nodiscard]] CardGrid* panels() const { return m_panels; }
    [[nodiscard]] CardGrid* recentProjects() const { return m_recentGrid; }
    [[nodiscard]] CardGrid* examples() const { return m_examples; }

Q_SIGNALS:
    /// A new project is wanted for a display of \a size in pixels; an invalid one is to be asked for.
    void newRequested(const QSize& size);
    /// A project is to be chosen and opened.
    void openRequested();
    void projectRequested(const QString& folder);
    void exampleRequested(const QString& folder);
    /// The user wants to see the open project.
    void leaveRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    void fillPanels();
    void fillExamples(const QString& folder);
    void fillRecent();
    void drawMissingPictures();
    void showRecentMenu(const QPoint& place);
    void openRecent(const QListWidgetItem* item);

    RecentFiles* m_recent;
    CardGrid* m_panels;
    CardGrid* m_recentGrid;
    CardGrid* m_examples;
    QLabel* m_noRecent;
    QList<QListWidgetItem*> m_withoutPicture; // examples that wait for theirs
};

} // namespace Korvex::Meridane::Designer
