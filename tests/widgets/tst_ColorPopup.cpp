#include "host/core/widgets/ColorChannelFields.h"
#include "host/core/widgets/ColorChannelSlider.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/HueSaturationField.h"
#include "host/core/widgets/RecentColors.h"
#include "host/core/widgets/ScreenColorOverlay.h"
#include "host/core/widgets/ScreenColorPicker.h"
#include "host/core/widgets/SpinBox.h"

#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <algorithm>

using namespace Korvex::Meridane::Designer;

class tst_ColorPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void openingReportsNothing();
    void theFieldPicksHueAndSaturation();
    void theHueSurvivesGreyAndBlack();
    void brightnessLeadsToBlack();
    void alphaIsOfferedWhereItIsAllowed();
    void theTextSetsTheColor();
    void returnInTheTextTakesItOverAndASecondOneCloses();
    void escapeTakesEverythingBack();
    void escapeEndsADrag();
    void aChosenColorBecomesRecent();
    void recentColorsArePicked();
    void colorsInUseArePicked();
    void withoutColorsInUseTheirTitleIsHidden();
    void channelsAreTyped();
    void aTypedHueKeepsTheOtherChannels();
    void returnInAChannelTakesItOverAndASecondOneCloses();
    void aColorOfSeveralIsChosenAgain();
    void thePopupStaysOnTheScreen();
    void allPartsHaveNames();
    void aColorIsPickedFromTheScreen();
    void withoutPicturesOfTheScreenThePickerIsHidden();

private:
    [[nodiscard]] ColorChannelSlider* channel(const QString& name) const;

    std::unique_ptr<QWidget> m_anchor;
    std::unique_ptr<ColorPopup> m_popup;
    std::unique_ptr<QSignalSpy> m_modified;
};

void tst_ColorPopup::init()
{
    m_anchor = std::make_unique<QWidget>();
    m_anchor->setGeometry(100, 100, 60, 30);
    m_anchor->show();
    m_popup = std::make_unique<ColorPopup>(TransparencyAllowed);
    m_modified = std::make_unique<QSignalSpy>(m_popup.get(), &ColorPopup::userModified);
}

void tst_ColorPopup::cleanup()
{
    m_modified.reset();
    m_popup.reset();
    m_anchor.reset();
}

ColorChannelSlider* tst_ColorPopup::channel(const QString& name) const
{
    for (ColorChannelSlider* slider : m_popup->findChildren<ColorChannelSlider*>()) {
        if (slider->accessibleName() == name) {
            return slider;
        }
    }
    return nullptr;
}

void tst_ColorPopup::openingReportsNothing()
{
    m_popup->open(QColor(12, 34, 56, 78), m_anchor.get());
    QVERIFY(m_popup->isVisible());
    QCOMPARE(m_popup->color(), QColor(12, 34, 56, 78));
    m_popup->close();
    QCOMPARE(m_popup->color(), QColor(12, 34, 56, 78));
    QCOMPARE(m_modified->count(), 0);
}

void tst_ColorPopup::theFieldPicksHueAndSaturation()
{
    m_popup->open(QColor(255, 0, 0), m_anchor.get());
    auto* field = m_popup->findChild<HueSaturationField*>();
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(field->width() / 3, 3));
    const QColor color = m_popup->color();
    QVERIFY2(qAbs(color.hue() - 120) < 4, qPrintable(color.name()));
    QVERIFY(color.saturation() > 250);
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(field->width() / 3, field->height() - 2));
    QVERIFY(m_popup->color().saturation() < 5);
}

void tst_ColorPopup::theHueSurvivesGreyAndBlack()
{
    m_popup->open(QColor(0, 0, 255), m_anchor.get());
    auto* field = m_popup->findChild<HueSaturationField*>();
    ColorChannelSlider* brightness = channel(QStringLiteral("Brightness"));
    brightness->setValue(0);
    QCOMPARE(m_popup->color(), QColor(0, 0, 0));
    brightness->setValue(255);
    QCOMPARE(m_popup->color(), QColor(0, 0, 255));
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(field, Qt::Key_Down, Qt::ShiftModifier);
    }
    QCOMPARE(m_popup->color(), QColor(255, 255, 255));
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(field, Qt::Key_Up, Qt::ShiftModifier);
    }
    QCOMPARE(m_popup->color(), QColor(0, 0, 255));
}

void tst_ColorPopup::brightnessLeadsToBlack()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    ColorChannelSlider* brightness = channel(QStringLiteral("Brightness"));
    QCOMPARE(brightness->value(), 200);
    QTest::keyClick(brightness, Qt::Key_Right);
    QCOMPARE(m_popup->color(), QColor(0, 201, 0));
    QTest::mouseClick(brightness, Qt::LeftButton, {}, QPoint(0, 10));
    QCOMPARE(m_popup->color(), QColor(0, 0, 0));
}

void tst_ColorPopup::alphaIsOfferedWhereItIsAllowed()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    ColorChannelSlider* opacity = channel(QStringLiteral("Opacity"));
    QVERIFY(opacity->isVisible());
    opacity->setValue(100);
    QCOMPARE(m_popup->color(), QColor(0, 200, 0, 100));

    m_popup = std::make_unique<ColorPopup>(OpaqueOnly);
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    QVERIFY(!channel(QStringLiteral("Opacity"))->isVisible());
}

void tst_ColorPopup::theTextSetsTheColor()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    auto* text = m_popup->findChild<HexColorField*>();
    text->setFocus();
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("#336699"));
    QTest::keyClick(text, Qt::Key_Return);
    QCOMPARE(m_popup->color(), QColor(0x33, 0x66, 0x99));
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(channel(QStringLiteral("Brightness"))->value(), 0x99);
}

void tst_ColorPopup::returnInTheTextTakesItOverAndASecondOneCloses()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    auto* text = m_popup->findChild<HexColorField*>();
    text->setFocus();
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("red"));
    QTest::keyClick(text, Qt::Key_Return);
    QVERIFY(m_popup->isVisible());
    QTest::keyClick(text, Qt::Key_Return);
    QVERIFY(!m_popup->isVisible());
    QCOMPARE(m_popup->color(), QColor(255, 0, 0));
}

void tst_ColorPopup::escapeTakesEverythingBack()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    auto* field = m_popup->findChild<HueSaturationField*>();
    QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!m_popup->isVisible());
    QCOMPARE(m_popup->color(), QColor(0, 200, 0));
    QCOMPARE(m_modified->count(), 3);
}

void tst_ColorPopup::escapeEndsADrag()
{
    QSignalSpy started(m_popup.get(), &ColorPopup::gestureStarted);
    QSignalSpy finished(m_popup.get(), &ColorPopup::gestureFinished);
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    auto* field = m_popup->findChild<HueSaturationField*>();
    QTest::mousePress(field, Qt::LeftButton, {}, QPoint(30, 30));
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(m_popup->color(), QColor(0, 200, 0));
    QCOMPARE(started.count(), 1);
    QCOMPARE(finished.count(), 1);
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(30, 30));
    QCOMPARE(finished.count(), 1);
}

void tst_ColorPopup::aChosenColorBecomesRecent()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    QTest::keyClick(channel(QStringLiteral("Brightness")), Qt::Key_Left);
    m_popup->close();
    QCOMPARE(RecentColors::shared().colors().value(0), QColor(0, 199, 0));
}

void tst_ColorPopup::recentColorsArePicked()
{
    RecentColors::shared().add(QColor(77, 88, 99));
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    const auto swatches = m_popup->findChildren<ColorSwatch*>(QStringLiteral("recentColor"));
    QCOMPARE(swatches.size(), RecentColors::shared().colors().size());
    QTest::mouseClick(swatches.first(), Qt::LeftButton);
    QCOMPARE(m_popup->color(), QColor(77, 88, 99));
    QCOMPARE(m_modified->count(), 1);
}

void tst_ColorPopup::colorsInUseArePicked()
{
    QList<QColor> used;
    for (int i = 0; i < 20; ++i) {
        used.append(QColor(10 * i, 20, 30));
    }
    m_popup->open(QColor(0, 200, 0), m_anchor.get(), used);
    const auto swatches = m_popup->findChildren<ColorSwatch*>(QStringLiteral("usedColor"));
    QCOMPARE(swatches.size(), 16);
    QTest::mouseClick(swatches.at(3), Qt::LeftButton);
    QCOMPARE(m_popup->color(), QColor(30, 20, 30));
    QCOMPARE(m_modified->count(), 1);
    // By keyboard as well.
    swatches.at(4)->setFocus();
    QTest::keyClick(swatches.at(4), Qt::Key_Space);
    QCOMPARE(m_popup->color(), QColor(40, 20, 30));
}

void tst_ColorPopup::withoutColorsInUseTheirTitleIsHidden()
{
    const auto isShown = [this](const QString& text) {
        const auto labels = m_popup->findChildren<QLabel*>();
        return std::any_of(labels.cbegin(), labels.cend(),
                           [&text](const QLabel* label) { return label->text() == text && label->isVisible(); });
    };
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    QVERIFY(!isShown(QStringLiteral("In the project")));
    m_popup->close();
    m_popup->open(QColor(0, 200, 0), m_anchor.get(), {QColor(1, 2, 3)});
    QVERIFY(isShown(QStringLiteral("In the project")));
}

void tst_ColorPopup::channelsAreTyped()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    const auto enter = [](SpinBox* field, const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(text));
        QTest::keyClick(field, Qt::Key_Return);
    };
    ColorChannelFields* channels = m_popup->channelFields();
    enter(channels->redField(), "255/5");
    QCOMPARE(m_popup->color(), QColor(51, 200, 0));
    enter(channels->blueField(), "+=10");
    QCOMPARE(m_popup->color(), QColor(51, 200, 10));
    enter(channels->opacityField(), "50");
    QCOMPARE(m_popup->color(), QColor(51, 200, 10, 128));
    enter(channels->saturationField(), "0");
    QCOMPARE(m_popup->color(), QColor(200, 200, 200, 128));
    enter(channels->brightnessField(), "100");
    QCOMPARE(m_popup->color(), QColor(255, 255, 255, 128));
    QCOMPARE(m_modified->count(), 5);
}

void tst_ColorPopup::aTypedHueKeepsTheOtherChannels()
{
    // A brightness that is no whole percent.
    m_popup->open(QColor(0, 201, 0), m_anchor.get());
    SpinBox* hue = m_popup->channelFields()->hueField();
    QCOMPARE(hue->value(), 120.0);
    hue->setFocus();
    hue->selectAll();
    QTest::keyClicks(hue, QStringLiteral("240"));
    QTest::keyClick(hue, Qt::Key_Return);
    QCOMPARE(m_popup->color(), QColor(0, 0, 201));
}

void tst_ColorPopup::returnInAChannelTakesItOverAndASecondOneCloses()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    SpinBox* red = m_popup->channelFields()->redField();
    red->setFocus();
    red->selectAll();
    QTest::keyClicks(red, QStringLiteral("7"));
    QTest::keyClick(red, Qt::Key_Return);
    QVERIFY(m_popup->isVisible());
    QCOMPARE(m_popup->color(), QColor(7, 200, 0));
    QTest::keyClick(red, Qt::Key_Return);
    QVERIFY(!m_popup->isVisible());
}

void tst_ColorPopup::aColorOfSeveralIsChosenAgain()
{
    m_popup->open(QColor(1, 2, 3), m_anchor.get(), {QColor(1, 2, 3)}, true);
    QTest::mouseClick(m_popup->findChild<ColorSwatch*>(QStringLiteral("usedColor")), Qt::LeftButton);
    QCOMPARE(m_modified->count(), 1);
    m_popup->close();
    m_popup->open(QColor(1, 2, 3), m_anchor.get(), {}, true);
    QTest::keyClick(m_popup.get(), Qt::Key_Escape);
    QCOMPARE(m_modified->count(), 1);
}

void tst_ColorPopup::thePopupStaysOnTheScreen()
{
    const QRect available = m_anchor->screen()->availableGeometry();
    m_anchor->move(available.bottomRight() - QPoint(20, 20));
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    QVERIFY(available.contains(m_popup->geometry()));
}

void tst_ColorPopup::allPartsHaveNames()
{
    m_popup->open(QColor(0, 200, 0), m_anchor.get());
    for (const QWidget* part : m_popup->findChildren<QWidget*>()) {
        // The line in a number field speaks for the field.
        if (part->focusPolicy() != Qt::NoFocus && !part->focusProxy() && !part->isHidden()) {
            const auto* button = qobject_cast<const QAbstractButton*>(part);
            QVERIFY2(!part->accessibleName().isEmpty() || (button && !button->text().isEmpty()),
                     part->metaObject()->className());
        }
    }
}

void tst_ColorPopup::aColorIsPickedFromTheScreen()
{
    if (!ScreenColorPicker::isAvailable()) {
        QSKIP("this window system gives out no pictures of the screen");
    }
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(12, 200, 34));
    m_anchor->setPalette(palette);
    QVERIFY(QTest::qWaitForWindowExposed(m_anchor.get()));
    QTest::qWait(100);
    m_popup->open(QColor(1, 2, 3), m_anchor.get());
    auto* button = m_popup->findChild<QToolButton*>();
    const auto overlay = [] {
        const auto windows = QApplication::topLevelWidgets();
        const auto found = std::find_if(windows.cbegin(), windows.cend(), [](QWidget* widget) {
            return qobject_cast<ScreenColorOverlay*>(widget) && widget->isVisible();
        });
        return found == windows.cend() ? nullptr : *found;
    };
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(m_popup->screenPicker()->isActive());
    QVERIFY(!m_popup->isVisible());
    QTest::mouseClick(overlay(), Qt::LeftButton, {}, m_anchor->geometry().center());
    QCOMPARE(m_popup->color(), QColor(12, 200, 34));
    QCOMPARE(m_modified->count(), 1);
    QVERIFY(m_popup->isVisible());

    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(m_popup->screenPicker()->isActive());
    QTest::keyClick(overlay(), Qt::Key_Escape);
    QVERIFY(m_popup->isVisible());
    QCOMPARE(m_modified->count(), 1);
}

void tst_ColorPopup::withoutPicturesOfTheScreenThePickerIsHidden()
{
    m_popup->open(QColor(1, 2, 3), m_anchor.get());
    QCOMPARE(m_popup->findChild<QToolButton*>()->isVisible(), ScreenColorPicker::isAvailable());
}

QTEST_MAIN(tst_ColorPopup)
#include "tst_ColorPopup.moc"
