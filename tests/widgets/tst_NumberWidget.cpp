#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Korvex::Meridane::Designer;

class tst_NumberWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void settingAValueIsSilent();
    void typingIsReportedOnce();
    void theSliderIsHiddenUntilItIsAskedFor();
    void theSliderFollowsTheValue();
    void aDragIsOneGestureOfManyChanges();
    void escapeDuringADragGoesBack();
    void aDragRoundsToTheDecimals();
    void arrowKeysMoveTheSliderByAStep();
    void theWheelMovesAFocusedSliderOnly();
    void anEmptyRangeStopsTheSlider();
    void movingBetweenFieldAndSliderKeepsTheFocusInside();
    void exactValuesSurviveASlider();
    void relativeInputAndMixedStateReachTheField();
    void accessibleNamesReachTheParts();

private:
    [[nodiscard]] QPoint sliderPoint(double fraction) const
    {
        const QRect rect = m_widget->slider()->rect();
        return {qRound(rect.left() + fraction * rect.width()), rect.center().y()};
    }

    std::unique_ptr<QWidget> m_window;
    NumberWidget* m_widget = nullptr;
    QLineEdit* m_other = nullptr;
    std::unique_ptr<QSignalSpy> m_modified;
};

void tst_NumberWidget::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_widget = new NumberWidget(false);
    m_other = new QLineEdit;
    layout->addWidget(m_widget);
    layout->addWidget(m_other);
    m_widget->setMinimum(0);
    m_widget->setMaximum(100);
    m_widget->setDecimals(2);
    m_widget->setSingleStep(1);
    m_widget->showSlider(true);
    m_window->resize(400, 100);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_other->setFocus();
    m_modified = std::make_unique<QSignalSpy>(m_widget, &NumberWidget::userModified);
}

void tst_NumberWidget::cleanup()
{
    m_modified.reset();
    m_window.reset();
}

void tst_NumberWidget::settingAValueIsSilent()
{
    m_widget->setSuffix(QStringLiteral("%"));
    m_widget->setValue(43.3);
    QCOMPARE(m_widget->value(), 43.3);
    QCOMPARE(m_widget->spinBox()->text(), QStringLiteral("43.3%"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_NumberWidget::typingIsReportedOnce()
{
    m_widget->setFocus();
    QVERIFY(m_widget->spinBox()->hasFocus());
    m_widget->spinBox()->selectAll();
    QTest::keyClicks(m_widget->spinBox(), QStringLiteral("25"));
    QTest::keyClick(m_widget->spinBox(), Qt::Key_Return);
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_widget->value(), 25.0);
    QCOMPARE(m_widget->slider()->number(), 25.0);
}

void tst_NumberWidget::theSliderIsHiddenUntilItIsAskedFor()
{
    const NumberWidget widget(true);
    QVERIFY(widget.slider()->isHidden());
    QVERIFY(m_widget->slider()->isVisible());
    m_widget->showSlider(false);
    QVERIFY(!m_widget->slider()->isVisible());
}

void tst_NumberWidget::theSliderFollowsTheValue()
{
    m_widget->setValue(50);
    QCOMPARE(m_widget->slider()->number(), 50.0);
    m_widget->setValue(500);
    QCOMPARE(m_widget->slider()->number(), 100.0);
    QCOMPARE(m_widget->value(), 500.0);
}

void tst_NumberWidget::aDragIsOneGestureOfManyChanges()
{
    QStringList log;
    connect(m_widget, &NumberWidget::sliderPressed, this, [&] { log.append(QStringLiteral("pressed")); });
    connect(m_widget, &NumberWidget::sliderReleased, this, [&] { log.append(QStringLiteral("released")); });
    connect(m_widget, &NumberWidget::userModified, this, [&] { log.append(QStringLiteral("modified")); });
    NumberSlider* slider = m_widget->slider();
    QTest::mousePress(slider, Qt::LeftButton, {}, sliderPoint(0.25));
    const double first = m_widget->value();
    QVERIFY(first > 15 && first < 35);
    QTest::mouseMove(slider, sliderPoint(0.5));
    QTest::mouseMove(slider, sliderPoint(0.75));
    QVERIFY(m_widget->value() > 65 && m_widget->value() < 85);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, sliderPoint(0.75));
    QCOMPARE(log.first(), QStringLiteral("pressed"));
    QCOMPARE(log.last(), QStringLiteral("released"));
    QCOMPARE(log.count(QStringLiteral("pressed")), 1);
    QCOMPARE(log.count(QStringLiteral("released")), 1);
    QCOMPARE(log.count(QStringLiteral("modified")), 3);
}

void tst_NumberWidget::escapeDuringADragGoesBack()
{
    m_widget->setValue(10);
    QSignalSpy released(m_widget, &NumberWidget::sliderReleased);
    NumberSlider* slider = m_widget->slider();
    QTest::mousePress(slider, Qt::LeftButton, {}, sliderPoint(0.5));
    QTest::mouseMove(slider, sliderPoint(0.9));
    QTest::keyClick(slider, Qt::Key_Escape);
    QCOMPARE(m_widget->value(), 10.0);
    QCOMPARE(released.count(), 1);
    QTest::mouseMove(slider, sliderPoint(0.3));
    QTest::mouseRelease(slider, Qt::LeftButton, {}, sliderPoint(0.3));
    QCOMPARE(m_widget->value(), 10.0);
    QCOMPARE(released.count(), 1);
}

void tst_NumberWidget::aDragRoundsToTheDecimals()
{
    m_widget->setDecimals(0);
    QTest::mouseClick(m_widget->slider(), Qt::LeftButton, {}, sliderPoint(0.333));
    QCOMPARE(m_widget->value(), std::round(m_widget->value()));
}

void tst_NumberWidget::arrowKeysMoveTheSliderByAStep()
{
    m_widget->setSingleStep(5);
    m_widget->setValue(50);
    m_widget->slider()->setFocus();
    QTest::keyClick(m_widget->slider(), Qt::Key_Right);
    QCOMPARE(m_widget->value(), 55.0);
    QTest::keyClick(m_widget->slider(), Qt::Key_End);
    QCOMPARE(m_widget->value(), 100.0);
    QCOMPARE(m_modified->count(), 2);
}

void tst_NumberWidget::theWheelMovesAFocusedSliderOnly()
{
    NumberSlider* slider = m_widget->slider();
    const auto turn = [slider] {
        const QPointF center = QRectF(slider->rect()).center();
        QWheelEvent event(center, slider->mapToGlobal(center), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(slider, &event);
        return event.isAccepted();
    };
    m_widget->setValue(50);
    QVERIFY(!turn());
    QCOMPARE(m_widget->value(), 50.0);
    slider->setFocus();
    QVERIFY(turn());
    QVERIFY(m_widget->value() > 50);
}

void tst_NumberWidget::anEmptyRangeStopsTheSlider()
{
    m_widget->setMaximum(0);
    m_widget->setValue(0);
    QTest::mouseClick(m_widget->slider(), Qt::LeftButton, {}, sliderPoint(0.9));
    QCOMPARE(m_widget->value(), 0.0);
    QCOMPARE(m_modified->count(), 0);
}

void tst_NumberWidget::movingBetweenFieldAndSliderKeepsTheFocusInside()
{
    QSignalSpy in(m_widget, &NumberWidget::focusedIn);
    QSignalSpy out(m_widget, &NumberWidget::focusedOut);
    m_widget->setFocus();
    QCOMPARE(in.count(), 1);
    m_widget->slider()->setFocus();
    m_widget->spinBox()->setFocus();
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 0);
    m_other->setFocus();
    QCOMPARE(out.count(), 1);
}

void tst_NumberWidget::exactValuesSurviveASlider()
{
    m_widget->setValue(100.0 / 3);
    m_widget->setFocus();
    m_other->setFocus();
    QCOMPARE(m_widget->value(), 100.0 / 3);
    QCOMPARE(m_modified->count(), 0);
}

void tst_NumberWidget::relativeInputAndMixedStateReachTheField()
{
    m_widget->setRelativeInputAllowed(true);
    m_widget->setValue(10);
    m_widget->setMixed(true);
    QVERIFY(m_widget->isMixed());
    m_widget->setFocus();
    QTest::keyClicks(m_widget->spinBox(), QStringLiteral("-=2.5"));
    m_widget->commit();
    QCOMPARE(m_widget->operation(), (NumberOperation{NumberOperation::Kind::Subtract, 2.5}));
    QCOMPARE(m_widget->value(), 7.5);
    QCOMPARE(m_widget->adjusted(200), 100.0);
}

void tst_NumberWidget::accessibleNamesReachTheParts()
{
    m_widget->setAccessibleLabel(QStringLiteral("Angle"));
    QCOMPARE(m_widget->spinBox()->accessibleName(), QStringLiteral("Angle"));
    QCOMPARE(m_widget->slider()->accessibleName(), QStringLiteral("Angle"));
}

QTEST_MAIN(tst_NumberWidget)
#include "tst_NumberWidget.moc"
