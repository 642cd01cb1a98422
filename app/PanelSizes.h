#pragma once

#include <QSize>

#include <array>

namespace Korvex::Meridane::Designer {

/// The sizes of common panels in pixels, the smallest first.
inline constexpr std::array<QSize, 5> PanelSizes{QSize(320, 240), QSize(480, 272), QSize(800, 480), QSize(1024, 600),
                                                 QSize(1280, 480)};

} // namespace Korvex::Meridane::Designer
