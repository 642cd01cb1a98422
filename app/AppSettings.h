#pragma once

#include <QSettings>

namespace Korvex::Meridane::Designer {

/// The user's settings of the application: one INI file in the platform's folder for configuration, so that tests and
/// portable installations can keep their own (XDG_CONFIG_HOME, the test mode of QStandardPaths). Several objects may
/// live at a time; they share what they read and write.
class AppSettings : public QSettings
{
public:
    AppSettings();

    /// The absolute path of the settings file.
    [[nodiscard]] static QString filePath();
};

} // namespace Korvex::Meridane::Designer
