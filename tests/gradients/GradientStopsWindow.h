#pragma once

#include "gradients/GradientPreview.h"
#include "gradients/GradientStopWidget.h"
#include "gradients/GradientStopsWidget.h"
#include "gradients/WholePercent.h"

#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/MessageBox.h"
#include "host/core/widgets/SpinBox.h"

#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

namespace Korvex::Meridane::Designer::Test {

constexpr int Most = 101;
const QColor Orange(248, 151, 29, 255); // of a new stop

inline QWidget* focus()
{
    return QApplication::focusWidget();
}

inline void click(QWidget* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

inline void type(SpinBox* field, const char* text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QString::fromLatin1(text));
}

inline void enter(SpinBox* field, const char* text)
{
    type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/// A change of the colour as the popup makes it.
inline void pick(ColorWidget* picker, const QColor& color)
{
    picker->setColor(color);
    Q_EMIT picker->userModified();
}

/// \a count stops at 0, 1, 2 … percent, each in a colour of its own.
inline QGradientStops stopsAtEachPercent(int count)
{
    QGradientStops stops;
    for (int i = 0; i < count; ++i)
        stops.append({i / 100.0, QColor(i, 255 - i, 77)});
    return stops;
}

/// Carries out what waits for the event loop, deletions included.
inline void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The warnings shown since it was made; it takes the place of their dialogs.
class Warnings
{
public:
    Warnings()
        : m_before(MessageBox::setPresenter([this](QWidget*, const QString& title, const QString& text) {
            texts.append(title + QLatin1String(": ") + text);
            if (whileOpen)
                whileOpen();
        }))
    {}
    ~Warnings() { MessageBox::setPresenter(m_before); }
    Q_DISABLE_COPY_MOVE(Warnings)

    QStringList texts; ///< "title: text"
    std::function<void()> whileOpen;

private:
    MessageBox::Presenter m_before;
};

/// A widget in a window of its own, used like a user does.
template <typename Widget>
class WindowOf : public QWidget
{
public:
    explicit WindowOf(Widget* shown)
        : widget(shown)
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(shown);
        column->addStretch(1);
        resize(280, 860);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window does not become active");
    }

    Widget* const widget;
};

/// The list of gradient stops in a window, for tests to derive from.
class GradientStopsWindow
{
protected:
    void open()
    {
        m_warnings = std::make_unique<Warnings>();
        m_window = std::make_unique<WindowOf<GradientStopsWidget>>(new GradientStopsWidget);
        m_modified = std::make_unique<QSignalSpy>(stops(), &GradientStopsWidget::userModified);
    }
    void close()
    {
        m_modified.reset();
        m_window.reset();
        m_warnings.reset();
    }

    [[nodiscard]] GradientStopsWidget* stops() const { return m_window->widget; }
    [[nodiscard]] GradientStopWidget* row(int index) const { return stops()->rows().at(index); }
    [[nodiscard]] ItemButton* addButton() const { return stops()->addRow()->button(); }

    /// What the rows show, from top to bottom, which is to be the order of rows().
    [[nodiscard]] QGradientStops shownStops() const
    {
        stops()->layout()->activate();
        QGradientStops all;
        int bottom = stops()->preview()->geometry().bottom();
        for (const GradientStopWidget* each : stops()->rows()) {
            if (!each->isVisible() || each->y() <= bottom)
                return {};
            bottom = each->geometry().bottom();
            all.append(each->gradientStop());
        }
        return stops()->addRow()->y() > bottom ? all : QGradientStops();
    }
    /// The same as text: "33 #f8971d, 67 #ffffff".
    [[nodiscard]] QString shown() const
    {
        QStringList texts;
        for (const QGradientStop& stop : shownStops())
            texts.append(QStringLiteral("%1 %2").arg(wholePercent(stop.first)).arg(stop.second.name()));
        return texts.join(QStringLiteral(", "));
    }
    [[nodiscard]] int visibleRemoveButtons() const
    {
        const auto all = stops()->findChildren<QToolButton*>(QStringLiteral("removeItem"));
        return int(
            std::count_if(all.begin(), all.end(), [](const QToolButton* button) { return button->isVisible(); }));
    }

    std::unique_ptr<Warnings> m_warnings;
    std::unique_ptr<WindowOf<GradientStopsWidget>> m_window;
    std::unique_ptr<QSignalSpy> m_modified; // of userModified()
};

} // namespace Korvex::Meridane::Designer::Test
