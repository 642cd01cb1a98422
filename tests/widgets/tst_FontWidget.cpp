#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/FontFamilyBox.h"
#include "host/core/widgets/FontStyleButton.h"
#include "host/core/widgets/FontWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Korvex::Meridane::Designer;

class tst_FontWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void settingAFontIsSilentAndExact();
    void familiesThatAreNotInstalledAreKept();
    void aTypedFamilyIsReported();
    void escapeTakesATypedFamilyBack();
    void theSizeChangesAlone();
    void theUnitKeepsTheSizeOnTheScreen();
    void styleButtonsChangeTheirAttributeAlone();
    void weightsWithoutANameAreListed();
    void weightsAreChosen();
    void spacingsShowWhatWasEntered();
    void noLetterSpacingIsTheFontThatWasNeverSpaced();
    void allPartsHaveNames();

private:
    void enter(SpinBox* field, const QString& text);

    std::unique_ptr<QWidget> m_window;
    FontWidget* m_widget = nullptr;
    QLineEdit* m_other = nullptr;
    std::unique_ptr<QSignalSpy> m_modified;
};

void tst_FontWidget::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_widget = new FontWidget;
    m_other = new QLineEdit;
    layout->addWidget(m_widget);
    layout->addWidget(m_other);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_other->setFocus();
    m_widget->setValue(ValueConversion::toFont(QStringLiteral("family: Surely Missing Sans; pointSize: 10.55;")));
    m_modified = std::make_unique<QSignalSpy>(m_widget, &FontWidget::userModified);
}

void tst_FontWidget::cleanup()
{
    m_modified.reset();
    m_window.reset();
}

void tst_FontWidget::enter(SpinBox* field, const QString& text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

void tst_FontWidget::settingAFontIsSilentAndExact()
{
    for (const QString& text :
         {QStringLiteral("family: Surely Missing Sans; pointSize: 10.123456; weight: 123;"),
          QStringLiteral(
              "family: X; pixelSize: 33; bold: true; italic: true; letterSpacing: 0.1; wordSpacing: -2.5;")}) {
        m_widget->setValue(ValueConversion::toFont(text));
        m_widget->sizeField()->setFocus();
        m_widget->familyBox()->setFocus();
        m_other->setFocus();
        QCOMPARE(ValueConversion::toString(m_widget->value()), text);
    }
    QCOMPARE(m_modified->count(), 0);
}

void tst_FontWidget::familiesThatAreNotInstalledAreKept()
{
    QCOMPARE(m_widget->familyBox()->family(), QStringLiteral("Surely Missing Sans"));
    QCOMPARE(m_widget->familyBox()->currentText(), QStringLiteral("Surely Missing Sans"));
    QVERIFY(!m_widget->familyBox()->isInstalled());
    QVERIFY(m_widget->familyBox()->toolTip().contains(QStringLiteral("Surely Missing Sans")));
}

void tst_FontWidget::aTypedFamilyIsReported()
{
    FontFamilyBox* box = m_widget->familyBox();
    if (box->count() == 0) {
        QSKIP("no fonts are installed");
    }
    const QString installed = box->itemText(box->count() - 1);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, installed.toUpper());
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(m_widget->value().family(), installed);
    QVERIFY(box->isInstalled());
    QCOMPARE(m_modified->count(), 1);
    m_other->setFocus();
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_widget->value().pointSizeF(), 10.55);
}

void tst_FontWidget::escapeTakesATypedFamilyBack()
{
    FontFamilyBox* box = m_widget->familyBox();
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, QStringLiteral("Another"));
    QTest::keyClick(box, Qt::Key_Escape);
    m_other->setFocus();
    QCOMPARE(box->currentText(), QStringLiteral("Surely Missing Sans"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_FontWidget::theSizeChangesAlone()
{
    enter(m_widget->sizeField(), QStringLiteral("21/2"));
    QCOMPARE(ValueConversion::toString(m_widget->value()),
             QStringLiteral("family: Surely Missing Sans; pointSize: 10.5;"));
    QCOMPARE(m_modified->count(), 1);
    enter(m_widget->sizeField(), QStringLiteral("0"));
    QCOMPARE(m_widget->value().pointSizeF(), 1.0);
}

void tst_FontWidget::theUnitKeepsTheSizeOnTheScreen()
{
    m_widget->setValue(ValueConversion::toFont(QStringLiteral("family: X; pointSize: 24;")));
    m_widget->unitBox()->setFocus();
    QTest::keyClick(m_widget->unitBox(), Qt::Key_Down);
    QCOMPARE(m_widget->value().pixelSize(), 32);
    QCOMPARE(m_widget->sizeField()->text(), QStringLiteral("32"));
    QTest::keyClick(m_widget->unitBox(), Qt::Key_Up);
    QCOMPARE(m_widget->value().pixelSize(), -1);
    QCOMPARE(m_widget->value().pointSizeF(), 24.0);
    QCOMPARE(m_modified->count(), 2);
}

void tst_FontWidget::styleButtonsChangeTheirAttributeAlone()
{
    for (FontStyleButton* button : m_widget->styleButtons()) {
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(m_modified->count(), 5);
    QCOMPARE(ValueConversion::toString(m_widget->value()),
             QStringLiteral("family: Surely Missing Sans; pointSize: 10.55; bold: true; italic: true; "
                            "underline: true; overline: true; strikeOut: true;"));
    QCOMPARE(m_widget->weightBox()->currentItemKey(), QStringLiteral("700"));
    for (FontStyleButton* button : m_widget->styleButtons()) {
        QTest::keyClick(button, Qt::Key_Space);
    }
    QCOMPARE(ValueConversion::toString(m_widget->value()),
             QStringLiteral("family: Surely Missing Sans; pointSize: 10.55;"));
}

void tst_FontWidget::weightsWithoutANameAreListed()
{
    m_widget->setValue(ValueConversion::toFont(QStringLiteral("family: X; pointSize: 24; weight: 450;")));
    QCOMPARE(m_widget->weightBox()->currentText(), QStringLiteral("450"));
    QCOMPARE(m_widget->weightBox()->count(), 10);
    m_widget->setValue(ValueConversion::toFont(QStringLiteral("family: X; pointSize: 24; weight: 950;")));
    QCOMPARE(m_widget->weightBox()->currentIndex(), 9);
    m_widget->setValue(ValueConversion::toFont(QStringLiteral("family: X; pointSize: 24;")));
    QCOMPARE(m_widget->weightBox()->count(), 9);
    QCOMPARE(m_widget->weightBox()->currentText(), QStringLiteral("Normal"));
    QCOMPARE(m_modified->count(), 0);
}

void tst_FontWidget::weightsAreChosen()
{
    m_widget->weightBox()->setFocus();
    QTest::keyClick(m_widget->weightBox(), Qt::Key_End);
    QCOMPARE(m_widget->value().weight(), QFont::Black);
    QCOMPARE(m_modified->count(), 1);
}

void tst_FontWidget::spacingsShowWhatWasEntered()
{
    enter(m_widget->letterSpacingField(), QStringLiteral("0.1"));
    QCOMPARE(m_widget->letterSpacingField()->text(), QStringLiteral("0.1 px"));
    enter(m_widget->wordSpacingField(), QStringLiteral("-2.5"));
    QCOMPARE(ValueConversion::toString(m_widget->value()),
             QStringLiteral("family: Surely Missing Sans; pointSize: 10.55; letterSpacing: 0.1; wordSpacing: -2.5;"));
    QCOMPARE(m_modified->count(), 2);
}

void tst_FontWidget::noLetterSpacingIsTheFontThatWasNeverSpaced()
{
    const QFont before = m_widget->value();
    enter(m_widget->letterSpacingField(), QStringLiteral("3"));
    enter(m_widget->letterSpacingField(), QStringLiteral("0"));
    QCOMPARE(m_widget->value(), before);
}

void tst_FontWidget::allPartsHaveNames()
{
    for (const QWidget* part : m_widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part->focusPolicy() != Qt::NoFocus) {
            QVERIFY2(!part->accessibleName().isEmpty(), part->metaObject()->className());
        }
    }
}

QTEST_MAIN(tst_FontWidget)
#include "tst_FontWidget.moc"
