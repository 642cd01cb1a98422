#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QString>

#include <functional>

class QWidget;

namespace Korvex::Meridane::Designer {
/**
 * Messages to the user. Programs without a window, and tests, install a presenter of their own and get the texts
 * instead of a dialog that nobody can close. To be used on the GUI thread.
 */
class MERIDANE_CORE_EXPORT MessageBox
{
public:
    MessageBox() = delete;

    /** Receives the widget that the message concerns (may be null), its title and its text, both localised. */
    using Presenter = std::function<void(QWidget* parent, const QString& title, const QString& text)>;

    /**
     * Shows a warning and returns when the user has closed it. Without a presenter and without a screen (no
     * QApplication, or one without windows) the message goes to the log.
     */
    static void warning(QWidget* parent, const QString& title, const QString& text);

    /** Takes @p presenter for all further messages, an empty one for the dialogs; gives back the one before. */
    static Presenter setPresenter(Presenter presenter);
};
} // namespace Korvex::Meridane::Designer
