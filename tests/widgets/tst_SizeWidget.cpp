#include "host/core/widgets/LockToggle.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Korvex::Meridane::Designer;

class tst_SizeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void settingASizeIsSilent();
    void eachDimensionIsReported();
    void limitsApplyToEachDimension();
    void exactSizesSurviveTheFocus();
    void eachDimensionHasAMixedStateAndAnOperation();
    void theLockIsHiddenUntilItIsAskedFor();
    void theLockIsReported();
    void focusStaysInsideBetweenTheFields();
    void theFieldsHaveNames();

private:
    std::unique_ptr<QWidget> m_window;
    SizeWidget* m_widget = nullptr;
    QLineEdit* m_other = nullptr;
};

void tst_SizeWidget::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_widget = new SizeWidget;
    m_other = new QLineEdit;
    layout->addWidget(m_widget);
    layout->addWidget(m_other);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_SizeWidget::cleanup()
{
    m_window.reset();
}

void tst_SizeWidget::settingASizeIsSilent()
{
    QSignalSpy modified(m_widget, &SizeWidget::userModified);
    m_widget->setValue(QSizeF(100, 75.5));
    QCOMPARE(m_widget->value(), QSizeF(100, 75.5));
    QCOMPARE(m_widget->widthField()->text(), QStringLiteral("100 px"));
    QCOMPARE(m_widget->heightField()->text(), QStringLiteral("75.5 px"));
    QCOMPARE(modified.count(), 0);
}

void tst_SizeWidget::eachDimensionIsReported()
{
    m_widget->setValue(QSizeF(100, 75));
    QSignalSpy width(m_widget, &SizeWidget::userModifiedWidth);
    QSignalSpy height(m_widget, &SizeWidget::userModifiedHeight);
    QSignalSpy modified(m_widget, &SizeWidget::userModified);
    m_widget->setFocus();
    m_widget->widthField()->selectAll();
    QTest::keyClicks(m_widget->widthField(), QStringLiteral("50*3"));
    QTest::keyClick(m_widget->widthField(), Qt::Key_Return);
    QCOMPARE(m_widget->value(), QSizeF(150, 75));
    QCOMPARE(width.count(), 1);
    QCOMPARE(height.count(), 0);
    m_widget->heightField()->setFocus();
    QTest::keyClick(m_widget->heightField(), Qt::Key_Up);
    QCOMPARE(m_widget->value(), QSizeF(150, 76));
    QCOMPARE(width.count(), 1);
    QCOMPARE(height.count(), 1);
    QCOMPARE(modified.count(), 2);
}

void tst_SizeWidget::limitsApplyToEachDimension()
{
    m_widget->setMinimum(QSizeF(1, 2));
    m_widget->setMaximum(QSizeF(10, 20));
    m_widget->setDecimals(0);
    QCOMPARE(m_widget->widthField()->adjusted(99), 10.0);
    QCOMPARE(m_widget->heightField()->adjusted(99), 20.0);
    QCOMPARE(m_widget->widthField()->adjusted(0), 1.0);
    QCOMPARE(m_widget->heightField()->adjusted(5.6), 6.0);
}

void tst_SizeWidget::exactSizesSurviveTheFocus()
{
    m_widget->setValue(QSizeF(100.0 / 3, 1e6));
    QSignalSpy modified(m_widget, &SizeWidget::userModified);
    m_widget->widthField()->setFocus();
    m_widget->heightField()->setFocus();
    m_other->setFocus();
    QCOMPARE(m_widget->value().width(), 100.0 / 3);
    QCOMPARE(m_widget->value().height(), 1e6);
    QCOMPARE(modified.count(), 0);
}

void tst_SizeWidget::eachDimensionHasAMixedStateAndAnOperation()
{
    m_widget->setRelativeInputAllowed(true);
    m_widget->setValue(QSizeF(10, 20));
    m_widget->setMixed(true, false);
    QVERIFY(m_widget->widthField()->isMixed());
    QVERIFY(!m_widget->heightField()->isMixed());
    m_widget->setFocus();
    QTest::keyClicks(m_widget->widthField(), QStringLiteral("*=2"));
    m_other->setFocus();
    QCOMPARE(m_widget->widthOperation(), (NumberOperation{NumberOperation::Kind::Multiply, 2}));
    QCOMPARE(m_widget->heightOperation(), (NumberOperation{NumberOperation::Kind::Set, 20}));
}

void tst_SizeWidget::theLockIsHiddenUntilItIsAskedFor()
{
    QVERIFY(!m_widget->lockToggle()->isVisible());
    m_widget->setLockVisible(true);
    QVERIFY(m_widget->lockToggle()->isVisible());
}

void tst_SizeWidget::theLockIsReported()
{
    m_widget->setLockVisible(true);
    QSignalSpy lock(m_widget, &SizeWidget::userModifiedLock);
    m_widget->setLocked(true);
    QVERIFY(m_widget->isLocked());
    QCOMPARE(lock.count(), 0);
    QTest::mouseClick(m_widget->lockToggle(), Qt::LeftButton);
    QVERIFY(!m_widget->isLocked());
    QCOMPARE(lock.count(), 1);
}

void tst_SizeWidget::focusStaysInsideBetweenTheFields()
{
    m_other->setFocus();
    QSignalSpy in(m_widget, &SizeWidget::focusedIn);
    QSignalSpy out(m_widget, &SizeWidget::focusedOut);
    m_widget->setFocus();
    QTest::keyClick(m_widget->widthField(), Qt::Key_Tab);
    QVERIFY(m_widget->heightField()->hasFocus());
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 0);
    m_other->setFocus();
    QCOMPARE(out.count(), 1);
}

void tst_SizeWidget::theFieldsHaveNames()
{
    QCOMPARE(m_widget->widthField()->accessibleName(), QStringLiteral("Width"));
    QCOMPARE(m_widget->heightField()->accessibleName(), QStringLiteral("Height"));
}

QTEST_MAIN(tst_SizeWidget)
#include "tst_SizeWidget.moc"
