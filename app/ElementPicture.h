#pragma once

#include <QIcon>
#include <QString>

namespace Korvex::Meridane::Designer {

/// Pictures of element classes, drawn by the elements themselves.
class ElementPicture
{
public:
    /**
     * A small card with a new element of \a className as its canvas item paints it, fitted into the card. It is drawn
     * anew for every size and scale. A class that has no canvas item gets the icon of unknown elements.
     */
    [[nodiscard]] static QIcon icon(const QString& className);
    /// The name of \a className as the user sees it; the class name itself where no element can be made.
    [[nodiscard]] static QString displayName(const QString& className);
};

} // namespace Korvex::Meridane::Designer
