#pragma once

#include <QTimer>
#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace Korvex::Meridane::Designer {

class EditSession;
class ProjectSearch;

/**
 * Finds things in the project by a text, or what refers to one thing, and lists the places; a click leads to one.
 *
 * A search runs while nothing else goes on, and the list fills meanwhile; a new search, or Escape, ends it.
 */
class FindPanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session outlives the panel.
    explicit FindPanel(EditSession* session, QWidget* parent = nullptr);
    ~FindPanel() override;

    /// Goes to the line in which the text is typed.
    void editText();
    /// Lists what refers to \a name (see ProjectSearch::forReferences()).
    void showReferences(const QString& name);

    [[nodiscard]] QLineEdit* line() const { return m_line; }
    [[nodiscard]] QTreeWidget* results() const { return m_results; }
    [[nodiscard]] bool isSearching() const { return m_search != nullptr; }
    /// What is said of the search: how much it has found.
    [[nodiscard]] QString status() const;

Q_SIGNALS:
    /// \a object ("screen/id", a screen's id, or empty for the project) and its \a property are wanted.
    void placeRequested(const QString& object, const QString& property);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    enum Kind
    {
        Text,
        References
    };

    void search();
    void proceed();
    void stop();
    void showStatus();
    void addMatches();

    EditSession* m_session;
    QComboBox* m_kind;
    QLineEdit* m_line;
    QLabel* m_status;
    QTreeWidget* m_results;
    QTimer m_typing; // waits for the next letter
    QTimer m_slices;
    std::unique_ptr<ProjectSearch> m_search; // while one runs
    bool m_cut = false;
};

} // namespace Korvex::Meridane::Designer
