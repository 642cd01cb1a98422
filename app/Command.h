#pragma once

#include <QIcon>
#include <QString>

#include <functional>

namespace Korvex::Meridane::Designer {

/// Something that can be found by its name and done: an action of a menu, the way to an element, …
struct Command
{
    QString id; ///< the same in every run of the program
    QString text; ///< as people read it
    QString path; ///< where it is found otherwise, such as the title of a menu
    QString keywords; ///< other words for it, separated by spaces
    QString shortcut; ///< its keys as people read them
    QIcon icon;
    bool enabled = true; ///< whether it can be done at the moment
    int handicap = 0; ///< what it stands behind others that fit as well
    std::function<void()> run;
};

} // namespace Korvex::Meridane::Designer
