#pragma once

#include <QString>

namespace Korvex::Meridane::Benchmarks {

/// Writes a project of one screen with \a count different rectangles into \a folder (which exists and is empty).
void writeRectangleProject(const QString& folder, int count);

/// Ends the program with a message unless the plug-in that makes rectangles is loaded.
void loadRectanglePlugin();

} // namespace Korvex::Meridane::Benchmarks
