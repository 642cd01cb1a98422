#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QPointer>
#include <QString>

#include <functional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Project;

/// A place of a project that a search has found.
struct MERIDANE_CORE_EXPORT SearchMatch
{
    QString object; ///< "screen/id", the screen's id, or empty for the project
    QString className; ///< as the user sees it
    QString property; ///< the property's id, or empty where the object itself was found
    QString propertyName; ///< its label
    QString value; ///< the property's value string, or the id of the object

    friend bool operator==(const SearchMatch& a, const SearchMatch& b) = default;
};

/**
 * Looks through a project, in the order of its tree: for a text, or for what refers to something.
 *
 * A search works in slices; screens that have not been read are read for it. What is taken out of the project between two
 * slices is passed over, and so is what is added where the search has been.
 */
class MERIDANE_CORE_EXPORT ProjectSearch
{
public:
    /// Objects whose id or class contains \a text, and properties whose value does; capitals make no difference. An empty
    /// text is found nowhere.
    [[nodiscard]] static ProjectSearch forText(Project* project, const QString& text);
    /// What refers to \a name: an object ("screen/id", an id that stands once, or a screen's id), an image or a font
    /// file of the project, a font family, or a colour ("#rrggbb", "#aarrggbb"). What \a name can be in several ways is
    /// looked for in all of them.
    [[nodiscard]] static ProjectSearch forReferences(Project* project, const QString& name);
    ~ProjectSearch();
    ProjectSearch(ProjectSearch&& other) noexcept;
    ProjectSearch& operator=(ProjectSearch&& other) noexcept;
    Q_DISABLE_COPY(ProjectSearch)

    /// Searches for \a milliseconds or a little longer (0: one object, negative: to the end). True when the search is over.
    bool proceed(int milliseconds = -1);
    /// What has been found so far.
    [[nodiscard]] const QList<SearchMatch>& matches() const { return m_matches; }
    /// Whether there were more matches than anybody looks at; the others have been left out.
    [[nodiscard]] bool isCut() const { return m_cut; }

    /// The number of matches after which a search ends; MostMatches unless set, negative: none.
    void setLimit(qsizetype matches) { m_limit = matches; }
    static constexpr qsizetype MostMatches = 5000;

private:
    using Visitor = std::function<void(const DesignerObject*, QList<SearchMatch>&)>;

    ProjectSearch(Project* project, Visitor visit);

    QPointer<Project> m_project;
    Visitor m_visit;
    QList<QPointer<const DesignerObject>> m_waiting; // the next one stands last
    QList<SearchMatch> m_matches;
    qsizetype m_limit = MostMatches;
    bool m_begun = false;
    bool m_cut = false;
};

} // namespace Korvex::Meridane::Designer
