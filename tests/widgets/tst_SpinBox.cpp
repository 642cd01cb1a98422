#include "host/core/widgets/SpinBox.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <limits>

using namespace Korvex::Meridane::Designer;
using Kind = NumberOperation::Kind;

class tst_SpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void settingAValueIsSilent();
    void exactValuesSurviveTheFocus();
    void valuesOutsideTheRangeSurviveTheFocus();
    void typingCountsOnEnter();
    void typingCountsWhenTheFocusLeaves();
    void escapeTakesTypingBack();
    void eachKeystrokeIsNoModification();
    void arithmeticIsComputed();
    void aCommaIsADecimalSign();
    void lettersAreNotAccepted();
    void entriesAreLimitedAndRounded();
    void textThatCannotBeReadIsDropped();
    void textThatCannotBeReadStaysWhereSomebodyListens();
    void aNewValueReplacesARefusedText();
    void anOperatorThatNothingFollowsIsIgnored();
    void retypingTheShownTextChangesNothing();
    void theSuffixIsKept();
    void aPastedSuffixIsIgnored();
    void stepsCommitTypingFirst();
    void stepsStopAtTheEnds();
    void shiftAndControlChangeTheStep();
    void stepsWrapWhenAsked();
    void theWheelActsOnTheFocusedFieldOnly();
    void relativeInputIsReported();
    void relativeInputIsRefusedUnlessAllowed();
    void stepsAreRelativeWhenAllowed();
    void mixedShowsADash();
    void aMixedFieldReportsEvenTheSameValue();
    void leavingAMixedFieldChangesNothing();
    void settingAValueEndsTheMixedState();
    void focusIsReported();
    void theValueFollowsTyping();
    void settingThePresentValueKeepsTyping();
    void settingAnotherValueReplacesTyping();
    void wholeNumbers();
    void undoIsTheProjectsUnlessTextIsTyped();
    void theBaseClassReportsEditsOfAssistivePrograms();
    void notANumberIsIgnored();
    void aRangeMovesTheFirstValueOnly();

private:
    void type(const QString& text);
    [[nodiscard]] QLineEdit* line() const { return m_box->findChild<QLineEdit*>(); }

    std::unique_ptr<QWidget> m_window;
    SpinBox* m_box = nullptr;
    QLineEdit* m_other = nullptr;
    std::unique_ptr<QSignalSpy> m_modified;
};

void tst_SpinBox::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_box = new SpinBox(false);
    m_other = new QLineEdit;
    layout->addWidget(m_box);
    layout->addWidget(m_other);
    m_box->setRange(0, 1000);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_box->setFocus();
    m_modified = std::make_unique<QSignalSpy>(m_box, &SpinBox::userModified);
}

void tst_SpinBox::cleanup()
{
    m_modified.reset();
    m_window.reset();
}

void tst_SpinBox::type(const QString& text)
{
    m_box->selectAll();
    QTest::keyClicks(m_box, text);
}

void tst_SpinBox::settingAValueIsSilent()
{
    m_box->setValue(12.5);
    QCOMPARE(m_box->value(), 12.5);
    QCOMPARE(m_box->text(), QStringLiteral("12.5"));
    m_box->setValue(100);
    QCOMPARE(m_box->text(), QStringLiteral("100"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::exactValuesSurviveTheFocus()
{
    m_box->setValue(1.0 / 3);
    QCOMPARE(m_box->text(), QStringLiteral("0.33"));
    m_other->setFocus();
    m_box->setFocus();
    QTest::keyClick(m_box, Qt::Key_Return);
    m_other->setFocus();
    QCOMPARE(m_box->value(), 1.0 / 3);
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::valuesOutsideTheRangeSurviveTheFocus()
{
    m_box->setValue(5000);
    QCOMPARE(m_box->text(), QStringLiteral("5000"));
    QTest::keyClick(m_box, Qt::Key_Return);
    m_other->setFocus();
    QCOMPARE(m_box->value(), 5000.0);
    QCOMPARE(m_box->text(), QStringLiteral("5000"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::typingCountsOnEnter()
{
    type(QStringLiteral("42.5"));
    QCOMPARE(m_modified->count(), 0);
    QTest::keyClick(m_box, Qt::Key_Enter);
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_box->value(), 42.5);
    QCOMPARE(m_box->operation(), (NumberOperation{Kind::Set, 42.5}));
    QTest::keyClick(m_box, Qt::Key_Enter);
    m_other->setFocus();
    QCOMPARE(m_modified->count(), 1);
}

void tst_SpinBox::typingCountsWhenTheFocusLeaves()
{
    type(QStringLiteral("7"));
    QTest::keyClick(m_box, Qt::Key_Tab);
    QVERIFY(m_other->hasFocus());
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_box->value(), 7.0);
}

void tst_SpinBox::escapeTakesTypingBack()
{
    m_box->setValue(3);
    type(QStringLiteral("99"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(m_box->text(), QStringLiteral("3"));
    m_other->setFocus();
    QCOMPARE(m_box->value(), 3.0);
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::eachKeystrokeIsNoModification()
{
    type(QStringLiteral("123"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::arithmeticIsComputed()
{
    type(QStringLiteral("120/3+(2-1)*4"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 44.0);
    QCOMPARE(m_box->text(), QStringLiteral("44"));
    type(QStringLiteral("100/3"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 33.33);
}

void tst_SpinBox::aCommaIsADecimalSign()
{
    type(QStringLiteral("2,5"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 2.5);
}

void tst_SpinBox::lettersAreNotAccepted()
{
    type(QStringLiteral("1x2y=3"));
    QCOMPARE(line()->text(), QStringLiteral("123"));
}

void tst_SpinBox::entriesAreLimitedAndRounded()
{
    type(QStringLiteral("5000"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 1000.0);
    QCOMPARE(m_box->text(), QStringLiteral("1000"));
    type(QStringLiteral("-3"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 0.0);
    type(QStringLiteral("1.2345"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 1.23);
    m_box->setMaximum(1.234);
    QCOMPARE(m_box->adjusted(50), 1.23);
    m_box->setMaximum(1.236);
    QCOMPARE(m_box->adjusted(50), 1.236); // 1.24 lies beyond
}

void tst_SpinBox::textThatCannotBeReadIsDropped()
{
    m_box->setValue(3);
    for (const QString& text : {QStringLiteral("1/0"), QStringLiteral("(2"), QStringLiteral("1.2.3")}) {
        type(text);
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_box->text(), QStringLiteral("3"));
    }
    m_box->selectAll();
    QTest::keyClick(m_box, Qt::Key_Delete);
    m_other->setFocus();
    QCOMPARE(m_box->text(), QStringLiteral("3"));
    QCOMPARE(m_box->value(), 3.0);
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::textThatCannotBeReadStaysWhereSomebodyListens()
{
    m_box->setValue(3);
    QSignalSpy refused(m_box, &SpinBox::inputRefused);
    type(QStringLiteral("1/0"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->text(), QStringLiteral("1/0"));
    QCOMPARE(refused.count(), 1);
    QVERIFY(!refused.first().first().toString().isEmpty());
    m_other->setFocus();
    QCOMPARE(m_box->text(), QStringLiteral("1/0"));
    QCOMPARE(m_box->value(), 3.0);
    QCOMPARE(m_modified->count(), 0);
    m_box->setFocus();
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(m_box->text(), QStringLiteral("3"));
    // Whoever was told of the text is told that it is in order again, also where the value is the same.
    type(QStringLiteral("(2"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->text(), QStringLiteral("(2"));
    type(QStringLiteral("3"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->text(), QStringLiteral("3"));
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_box->value(), 3.0);
}

void tst_SpinBox::aNewValueReplacesARefusedText()
{
    m_box->setValue(3);
    const QSignalSpy refused(m_box, &SpinBox::inputRefused);
    type(QStringLiteral("1/0"));
    m_other->setFocus();
    m_box->setValue(4);
    QCOMPARE(m_box->text(), QStringLiteral("4"));
    type(QStringLiteral("1/0"));
    m_other->setFocus();
    m_box->dropInput();
    QCOMPARE(m_box->text(), QStringLiteral("4"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::anOperatorThatNothingFollowsIsIgnored()
{
    type(QStringLiteral("40+"));
    QCOMPARE(m_box->value(), 40.0);
    m_other->setFocus();
    QCOMPARE(m_box->value(), 40.0);
    QCOMPARE(m_modified->count(), 1);
}

void tst_SpinBox::retypingTheShownTextChangesNothing()
{
    m_box->setValue(2.0 / 3);
    type(QStringLiteral("0.67"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 2.0 / 3);
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::theSuffixIsKept()
{
    m_box->setSuffix(QStringLiteral(" px"));
    m_box->setValue(5);
    QCOMPARE(m_box->text(), QStringLiteral("5 px"));
    type(QStringLiteral("12*2"));
    QCOMPARE(line()->text(), QStringLiteral("12*2 px"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->text(), QStringLiteral("24 px"));
    QCOMPARE(m_box->value(), 24.0);
}

void tst_SpinBox::aPastedSuffixIsIgnored()
{
    m_box->setSuffix(QStringLiteral(" px"));
    m_box->selectAll();
    line()->insert(QStringLiteral("50px"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 50.0);
    QCOMPARE(m_box->text(), QStringLiteral("50 px"));
}

void tst_SpinBox::stepsCommitTypingFirst()
{
    type(QStringLiteral("10"));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->value(), 11.0);
    QCOMPARE(m_modified->count(), 2);
    QTest::keyClick(m_box, Qt::Key_PageDown);
    QCOMPARE(m_box->value(), 1.0);
    QCOMPARE(m_modified->count(), 3);
}

void tst_SpinBox::stepsStopAtTheEnds()
{
    m_box->setValue(999.5);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->value(), 1000.0);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->value(), 1000.0);
    QCOMPARE(m_modified->count(), 1);
}

void tst_SpinBox::shiftAndControlChangeTheStep()
{
    m_box->setValue(5);
    m_box->setFocus();
    QTest::keyClick(m_box, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_box->value(), 15.0);
    QTest::keyClick(m_box, Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_box->value(), 14.9);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->value(), 15.9);
    // A tenth of a whole number is the smallest step that makes a difference.
    m_box->setDecimals(0);
    m_box->setValue(7);
    QTest::keyClick(m_box, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_box->value(), 8.0);
    QTest::keyClick(m_box, Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_box->value(), 7.0);
}

void tst_SpinBox::stepsWrapWhenAsked()
{
    m_box->setWrapping(true);
    m_box->setRange(0, 359.99);
    m_box->setSingleStep(10);
    m_box->setValue(355);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->value(), 359.99);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->value(), 0.0);
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->value(), 359.99);
}

void tst_SpinBox::theWheelActsOnTheFocusedFieldOnly()
{
    const auto turn = [this] {
        const QPointF center = QRectF(m_box->rect()).center();
        QWheelEvent event(center, m_box->mapToGlobal(center), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_box, &event);
        return event.isAccepted();
    };
    m_box->setValue(5);
    QVERIFY(turn());
    QCOMPARE(m_box->value(), 6.0);
    m_other->setFocus();
    QVERIFY(!turn());
    QCOMPARE(m_box->value(), 6.0);
    QCOMPARE(m_modified->count(), 1);
}

void tst_SpinBox::relativeInputIsReported()
{
    m_box->setRelativeInputAllowed(true);
    m_box->setValue(20);
    type(QStringLiteral("+=10/4"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 22.5);
    QCOMPARE(m_box->operation(), (NumberOperation{Kind::Add, 2.5}));
    type(QStringLiteral("/=2"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 11.25);
    QCOMPARE(m_box->operation(), (NumberOperation{Kind::Divide, 2}));
    m_box->setValue(3);
    QCOMPARE(m_box->operation(), (NumberOperation{Kind::Set, 3}));
    QCOMPARE(m_modified->count(), 2);
}

void tst_SpinBox::relativeInputIsRefusedUnlessAllowed()
{
    m_box->setValue(20);
    type(QStringLiteral("+=10"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->value(), 10.0); // "+10": the "=" is not accepted
}

void tst_SpinBox::stepsAreRelativeWhenAllowed()
{
    m_box->setRelativeInputAllowed(true);
    m_box->setValue(20);
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->value(), 19.0);
    QCOMPARE(m_box->operation(), (NumberOperation{Kind::Add, -1}));
}

void tst_SpinBox::mixedShowsADash()
{
    m_box->setSuffix(QStringLiteral(" px"));
    m_box->setValue(20);
    m_box->setMixed(true);
    QVERIFY(m_box->isMixed());
    QCOMPARE(line()->text(), QString());
    QCOMPARE(line()->placeholderText(), QStringLiteral("\u2014"));
    QCOMPARE(m_box->value(), 20.0);
    m_box->setMixed(false);
    QCOMPARE(m_box->text(), QStringLiteral("20 px"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::aMixedFieldReportsEvenTheSameValue()
{
    m_box->setRelativeInputAllowed(true);
    m_box->setSuffix(QStringLiteral(" px"));
    m_box->setValue(20);
    m_box->setMixed(true);
    type(QStringLiteral("20"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_modified->count(), 1);
    QVERIFY(!m_box->isMixed());
    QCOMPARE(m_box->text(), QStringLiteral("20 px"));

    m_box->setMixed(true);
    type(QStringLiteral("*=2"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_modified->count(), 2);
    QCOMPARE(m_box->operation(), (NumberOperation{Kind::Multiply, 2}));
    QVERIFY2(m_box->isMixed(), "values that differed still differ after a relative change");
}

void tst_SpinBox::leavingAMixedFieldChangesNothing()
{
    m_box->setValue(20);
    m_box->setMixed(true);
    QTest::keyClick(m_box, Qt::Key_Return);
    m_other->setFocus();
    QVERIFY(m_box->isMixed());
    QCOMPARE(line()->text(), QString());
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::settingAValueEndsTheMixedState()
{
    m_box->setValue(20);
    m_box->setMixed(true);
    m_box->setValue(20);
    QVERIFY(!m_box->isMixed());
    QCOMPARE(m_box->text(), QStringLiteral("20"));
}

void tst_SpinBox::focusIsReported()
{
    QSignalSpy in(m_box, &SpinBox::focusedIn);
    QSignalSpy out(m_box, &SpinBox::focusedOut);
    m_other->setFocus();
    QCOMPARE(out.count(), 1);
    QTest::mouseClick(line(), Qt::LeftButton);
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 1);
}

void tst_SpinBox::theValueFollowsTyping()
{
    type(QStringLiteral("12"));
    QCOMPARE(m_box->value(), 12.0);
    QTest::keyClicks(m_box, QStringLiteral("*"));
    QCOMPARE(m_box->value(), 12.0);
    QTest::keyClicks(m_box, QStringLiteral("2"));
    QCOMPARE(m_box->value(), 24.0);
}

void tst_SpinBox::settingThePresentValueKeepsTyping()
{
    m_box->setValue(5);
    type(QStringLiteral("12"));
    m_box->setValue(5);
    QCOMPARE(line()->text(), QStringLiteral("12"));
}

void tst_SpinBox::settingAnotherValueReplacesTyping()
{
    m_box->setValue(5);
    type(QStringLiteral("12"));
    m_box->setValue(6);
    m_other->setFocus();
    QCOMPARE(m_box->value(), 6.0);
    QCOMPARE(m_modified->count(), 0);
}

void tst_SpinBox::wholeNumbers()
{
    SpinBox box(true);
    QCOMPARE(box.decimals(), 0);
    box.setValue(33.4);
    QCOMPARE(box.text(), QStringLiteral("33"));
    QCOMPARE(box.value(), 33.4);
    QCOMPARE(box.adjusted(7.5), 8.0);
    box.setDecimals(2);
    QCOMPARE(box.text(), QStringLiteral("33.4"));
}

void tst_SpinBox::undoIsTheProjectsUnlessTextIsTyped()
{
    const auto overrides = [this] {
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
        event.ignore();
        QCoreApplication::sendEvent(m_box, &event);
        return event.isAccepted();
    };
    QVERIFY(!overrides());
    type(QStringLiteral("12"));
    QVERIFY(overrides());
}

void tst_SpinBox::theBaseClassReportsEditsOfAssistivePrograms()
{
    static_cast<QDoubleSpinBox*>(m_box)->setValue(17);
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_box->value(), 17.0);
}

void tst_SpinBox::notANumberIsIgnored()
{
    m_box->setValue(4);
    m_box->setValue(std::numeric_limits<double>::quiet_NaN());
    m_box->setValue(std::numeric_limits<double>::infinity());
    QCOMPARE(m_box->value(), 4.0);
}

void tst_SpinBox::aRangeMovesTheFirstValueOnly()
{
    SpinBox fresh(false);
    fresh.setRange(10, 20);
    QCOMPARE(fresh.value(), 10.0);
    fresh.setValue(15);
    fresh.setMaximum(12);
    QCOMPARE(fresh.value(), 15.0);
    fresh.setMinimum(30);
    QCOMPARE(fresh.maximum(), 30.0);
}

QTEST_MAIN(tst_SpinBox)
#include "tst_SpinBox.moc"
