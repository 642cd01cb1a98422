#include "host/core/widgets/MessageBox.h"

#include <QtCore/QDebug>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <utility>

namespace Korvex::Meridane::Designer {
namespace {
MessageBox::Presenter& installedPresenter()
{
    static MessageBox::Presenter presenter;
    return presenter;
}

/** Whether somebody sits before the windows of this program. */
bool hasScreen()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance())
           && QGuiApplication::platformName() != QLatin1String("offscreen")
           && !QGuiApplication::platformName().startsWith(QLatin1String("minimal"));
}
} // namespace

void MessageBox::warning(QWidget* parent, const QString& title, const QString& text)
{
    if (const Presenter presenter = installedPresenter()) {
        presenter(parent, title, text);
    } else if (hasScreen()) {
        QMessageBox::warning(parent, title, text);
    } else {
        qWarning().noquote().nospace() << title << ": " << text;
    }
}

MessageBox::Presenter MessageBox::setPresenter(Presenter presenter)
{
    return std::exchange(installedPresenter(), std::move(presenter));
}
} // namespace Korvex::Meridane::Designer
