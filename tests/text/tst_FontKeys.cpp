#include "text/FontKeys.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;

/// What the keys of a text box make of its font.
class tst_FontKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boldIsSwitched_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::newRow("normal") << int(QFont::Normal) << int(QFont::Bold);
        QTest::newRow("light") << int(QFont::Light) << int(QFont::Bold);
        QTest::newRow("thin") << int(QFont::Thin) << int(QFont::Bold);
        QTest::newRow("medium") << int(QFont::Medium) << int(QFont::Normal);
        QTest::newRow("demi bold") << int(QFont::DemiBold) << int(QFont::Normal);
        QTest::newRow("bold") << int(QFont::Bold) << int(QFont::Normal);
        QTest::newRow("black") << int(QFont::Black) << int(QFont::Normal);
    }

    void boldIsSwitched()
    {
        QFETCH(int, before);
        QFont font;
        font.setWeight(QFont::Weight(before));
        const auto changed = fontAfterKey(font, Qt::Key_B, Qt::AltModifier);
        QVERIFY(changed);
        QTEST(int(changed->weight()), "after");
    }

    void italicIsSwitched()
    {
        QFont font;
        for (const QFont::Style style : {QFont::StyleItalic, QFont::StyleOblique}) {
            font.setStyle(style);
            QCOMPARE(fontAfterKey(font, Qt::Key_I, Qt::AltModifier)->style(), QFont::StyleNormal);
        }
        font.setStyle(QFont::StyleNormal);
        QCOMPARE(fontAfterKey(font, Qt::Key_I, Qt::AltModifier)->style(), QFont::StyleItalic);
    }

    void eachLineIsSwitchedOnAndOff_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("strike-out") << int(Qt::Key_S);
        QTest::newRow("underline") << int(Qt::Key_U);
        QTest::newRow("overline") << int(Qt::Key_O);
    }

    void eachLineIsSwitchedOnAndOff()
    {
        QFETCH(int, key);
        const auto has = [key](const QFont& font) {
            return key == Qt::Key_S ? font.strikeOut() : key == Qt::Key_U ? font.underline() : font.overline();
        };
        const QFont font;
        const auto on = fontAfterKey(font, key, Qt::AltModifier);
        QVERIFY(on && has(*on));
        const auto off = fontAfterKey(*on, key, Qt::AltModifier);
        QVERIFY(off && !has(*off));
    }

    void theSizeStaysWithinItsLimits_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("keypad");
        QTest::addColumn<int>("after"); // 0: nothing happens
        for (const bool keypad : {false, true}) {
            const int larger = keypad ? Qt::Key_Plus : Qt::Key_Equal;
            const char* where = keypad ? "keypad" : "keys";
            QTest::addRow("%s, 7 smaller", where) << 7 << int(Qt::Key_Minus) << keypad << 6;
            QTest::addRow("%s, 6 smaller", where) << 6 << int(Qt::Key_Minus) << keypad << 0;
            QTest::addRow("%s, 3 smaller", where) << 3 << int(Qt::Key_Minus) << keypad << 0;
            QTest::addRow("%s, 3 larger", where) << 3 << larger << keypad << 4;
            QTest::addRow("%s, 998 larger", where) << 998 << larger << keypad << 999;
            QTest::addRow("%s, 999 larger", where) << 999 << larger << keypad << 0;
            QTest::addRow("%s, 2000 smaller", where) << 2000 << int(Qt::Key_Minus) << keypad << 1999;
        }
    }

    void theSizeStaysWithinItsLimits()
    {
        QFETCH(int, size);
        QFETCH(int, key);
        QFETCH(bool, keypad);
        QFETCH(int, after);
        QFont font;
        font.setPixelSize(size);
        const auto changed = fontAfterKey(font, key, keypad ? Qt::AltModifier | Qt::KeypadModifier : Qt::AltModifier);
        QCOMPARE(changed ? changed->pixelSize() : 0, after);
    }

    void aFontInPointsStartsFromItsSizeInPixels()
    {
        QFont font;
        font.setPointSize(24);
        QCOMPARE(fontAfterKey(font, Qt::Key_Equal, Qt::AltModifier)->pixelSize(), 33);
        QCOMPARE(fontAfterKey(font, Qt::Key_Minus, Qt::AltModifier)->pixelSize(), 31);
    }

    void everyOtherKeyIsLeftAlone()
    {
        const QFont font;
        for (const Qt::KeyboardModifiers modifiers :
             {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ControlModifier),
              Qt::AltModifier | Qt::ShiftModifier, Qt::AltModifier | Qt::ControlModifier}) {
            for (const int key : {Qt::Key_B, Qt::Key_I, Qt::Key_Minus, Qt::Key_Equal})
                QVERIFY(!fontAfterKey(font, key, modifiers));
        }
        for (const int key : {Qt::Key_A, Qt::Key_Plus, Qt::Key_Up, Qt::Key_Return})
            QVERIFY(!fontAfterKey(font, key, Qt::AltModifier));
        for (const int key : {Qt::Key_Equal, Qt::Key_B})
            QVERIFY(!fontAfterKey(font, key, Qt::AltModifier | Qt::KeypadModifier));
    }
};

QTEST_MAIN(tst_FontKeys)
#include "tst_FontKeys.moc"
