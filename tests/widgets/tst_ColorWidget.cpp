#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/HueSaturationField.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Korvex::Meridane::Designer;

class tst_ColorWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void settingAColorIsSilent();
    void aTypedColorIsReported_data();
    void aTypedColorIsReported();
    void textThatIsNoColorStaysAndSaysSo();
    void opaqueFieldsDropTheAlphaOfTypedColors();
    void opaqueFieldsShowATranslucentColorAsItIs();
    void compactFieldsShowTheSwatchAlone();
    void theSwatchShowsTheColorOnACheckerboard();
    void theSwatchOpensThePopup();
    void changesInThePopupAreReported();
    void whatIsDoneInThePopupIsOneGesture();
    void mixedShowsADash();
    void focusStaysInsideWithThePopup();

private:
    std::unique_ptr<QWidget> m_window;
    ColorWidget* m_widget = nullptr;
    QLineEdit* m_other = nullptr;
    std::unique_ptr<QSignalSpy> m_modified;
};

void tst_ColorWidget::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_widget = new ColorWidget(TransparencyAllowed, false);
    m_other = new QLineEdit;
    layout->addWidget(m_widget);
    layout->addWidget(m_other);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_other->setFocus();
    m_modified = std::make_unique<QSignalSpy>(m_widget, &ColorWidget::userModified);
}

void tst_ColorWidget::cleanup()
{
    m_modified.reset();
    m_window.reset();
}

void tst_ColorWidget::settingAColorIsSilent()
{
    m_widget->setColor(QColor(248, 151, 29, 128));
    QCOMPARE(m_widget->color(), QColor(248, 151, 29, 128));
    QCOMPARE(m_widget->textField()->text(), QStringLiteral("#80f8971d"));
    QCOMPARE(m_widget->swatch()->color(), QColor(248, 151, 29, 128));
    QCOMPARE(m_modified->count(), 0);
}

void tst_ColorWidget::aTypedColorIsReported_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("rgb") << QStringLiteral("#102030") << QColor(16, 32, 48);
    QTest::newRow("argb") << QStringLiteral("#40102030") << QColor(16, 32, 48, 64);
    QTest::newRow("without sign") << QStringLiteral("f8971d") << QColor(248, 151, 29);
    QTest::newRow("short") << QStringLiteral("0f0") << QColor(0, 255, 0);
    QTest::newRow("name with blanks around") << QStringLiteral(" orange ") << QColor(255, 165, 0);
}

void tst_ColorWidget::aTypedColorIsReported()
{
    QFETCH(QString, typed);
    QFETCH(QColor, expected);
    HexColorField* field = m_widget->textField();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, typed);
    QCOMPARE(m_modified->count(), 0);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(m_widget->color(), expected);
    QCOMPARE(m_widget->swatch()->color(), expected);
    QCOMPARE(m_modified->count(), 1);
    m_other->setFocus();
    QCOMPARE(m_modified->count(), 1);
}

void tst_ColorWidget::textThatIsNoColorStaysAndSaysSo()
{
    m_widget->setColor(QColor(1, 2, 3));
    HexColorField* field = m_widget->textField();
    field->setFocus();
    field->selectAll();
    QSignalSpy refused(m_widget, &ColorWidget::inputRefused);
    QTest::keyClicks(field, QStringLiteral("greenish"));
    m_other->setFocus();
    QCOMPARE(field->text(), QStringLiteral("greenish"));
    QCOMPARE(refused.count(), 1);
    QVERIFY(refused.first().first().toString().contains(QLatin1String("greenish")));
    QCOMPARE(m_modified->count(), 0);
    QCOMPARE(m_widget->color(), QColor(1, 2, 3));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(field->text(), QStringLiteral("#010203"));
    // A text that is in order again is reported, so that the complaint can go.
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("x"));
    QTest::keyClick(field, Qt::Key_Return);
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("#010203"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(m_modified->count(), 1);
    m_modified->clear();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("red"));
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(field->text(), QStringLiteral("#010203"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_ColorWidget::opaqueFieldsDropTheAlphaOfTypedColors()
{
    ColorWidget widget(OpaqueOnly, false);
    QSignalSpy modified(&widget, &ColorWidget::userModified);
    widget.textField()->setText(QStringLiteral("#40102030"));
    widget.textField()->commit();
    QCOMPARE(widget.color(), QColor(16, 32, 48));
    QCOMPARE(modified.count(), 1);
}

void tst_ColorWidget::opaqueFieldsShowATranslucentColorAsItIs()
{
    ColorWidget widget(OpaqueOnly, false);
    widget.setColor(QColor(16, 32, 48, 64));
    widget.textField()->commit();
    QCOMPARE(widget.color(), QColor(16, 32, 48, 64));
}

void tst_ColorWidget::compactFieldsShowTheSwatchAlone()
{
    const ColorWidget widget(TransparencyAllowed, true);
    QVERIFY(!widget.textField());
    QVERIFY(!widget.swatch()->isHidden());
}

void tst_ColorWidget::theSwatchShowsTheColorOnACheckerboard()
{
    ColorSwatch* swatch = m_widget->swatch();
    m_widget->setColor(QColor(10, 200, 30));
    const QImage opaque = swatch->grab().toImage();
    QCOMPARE(opaque.pixelColor(opaque.width() / 2, opaque.height() / 2), QColor(10, 200, 30));
    m_widget->setColor(QColor(0, 0, 0, 0));
    const QImage clear = swatch->grab().toImage();
    QSet<QRgb> colors;
    for (int x = 5; x < clear.width() - 5; ++x) {
        colors.insert(clear.pixel(x, clear.height() / 2));
    }
    QCOMPARE(colors.size(), 2);
}

void tst_ColorWidget::theSwatchOpensThePopup()
{
    QVERIFY(!m_widget->popup());
    m_widget->setColor(QColor(16, 32, 48));
    m_widget->swatch()->setFocus();
    QTest::keyClick(m_widget->swatch(), Qt::Key_Space);
    QVERIFY(m_widget->popup());
    QVERIFY(m_widget->popup()->isVisible());
    QCOMPARE(m_widget->popup()->color(), QColor(16, 32, 48));
    QTest::keyClick(m_widget->popup(), Qt::Key_Return);
    QVERIFY(!m_widget->popup()->isVisible());
    QCOMPARE(m_modified->count(), 0);
}

void tst_ColorWidget::changesInThePopupAreReported()
{
    m_widget->setColor(QColor(200, 32, 48));
    QTest::mouseClick(m_widget->swatch(), Qt::LeftButton);
    auto* field = m_widget->popup()->findChild<HueSaturationField*>();
    QTest::keyClick(field, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_widget->color(), m_widget->popup()->color());
    QVERIFY(m_widget->color() != QColor(200, 32, 48));
    QTest::keyClick(m_widget->popup(), Qt::Key_Escape);
    QCOMPARE(m_widget->color(), QColor(200, 32, 48));
    QCOMPARE(m_modified->count(), 2);
}

void tst_ColorWidget::whatIsDoneInThePopupIsOneGesture()
{
    QSignalSpy pressed(m_widget, &ColorWidget::sliderPressed);
    QSignalSpy released(m_widget, &ColorWidget::sliderReleased);
    m_widget->setColor(QColor(200, 32, 48));
    QTest::mouseClick(m_widget->swatch(), Qt::LeftButton);
    auto* field = m_widget->popup()->findChild<HueSaturationField*>();
    QTest::mousePress(field, Qt::LeftButton, {}, QPoint(20, 20));
    QTest::mouseMove(field, QPoint(40, 40));
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(40, 40));
    QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 0);
    QCOMPARE(m_modified->count(), 3);
    QSignalSpy cancelled(m_widget, &ColorWidget::cancelled);
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(m_widget->color(), QColor(200, 32, 48));
}

void tst_ColorWidget::mixedShowsADash()
{
    m_widget->setColor(QColor(1, 2, 3));
    m_widget->setMixed(true);
    QVERIFY(m_widget->isMixed());
    QCOMPARE(m_widget->textField()->text(), QString());
    QCOMPARE(m_widget->color(), QColor(1, 2, 3));
    m_widget->textField()->setFocus();
    m_other->setFocus();
    QCOMPARE(m_modified->count(), 0);
    m_widget->textField()->setFocus();
    QTest::keyClicks(m_widget->textField(), QStringLiteral("#010203"));
    QTest::keyClick(m_widget->textField(), Qt::Key_Return);
    QCOMPARE(m_modified->count(), 1);
    QVERIFY(!m_widget->isMixed());
}

void tst_ColorWidget::focusStaysInsideWithThePopup()
{
    QSignalSpy in(m_widget, &ColorWidget::focusedIn);
    QSignalSpy out(m_widget, &ColorWidget::focusedOut);
    m_widget->setFocus();
    QTest::mouseClick(m_widget->swatch(), Qt::LeftButton);
    m_widget->popup()->close();
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 0);
    m_other->setFocus();
    QCOMPARE(out.count(), 1);
}

QTEST_MAIN(tst_ColorWidget)
#include "tst_ColorWidget.moc"
