#pragma once

#include "host/core/CoreExport.h"

#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

class Project;

/// Brings font files into a project, where they are used for texts on the canvas, exported with them, and shown by the
/// display. An import is no step of the history; one that is not saved is taken back when the project is closed.
class MERIDANE_CORE_EXPORT FontImporter
{
public:
    FontImporter() = delete;

    /// Copies \a file into the project's fonts folder and lists it. The result is the name of the copy: that of the file
    /// where it is free and plain and ends as the content asks for, else one made of it; of a font that the project has
    /// already, the name that it has there. \a families: what texts call the font. Empty with a message, which names the
    /// file, when it cannot be read or used, or when the copy cannot be written.
    static QString importFont(Project* project, const QString& file, QStringList* families, QString* message);
};

} // namespace Korvex::Meridane::Designer
