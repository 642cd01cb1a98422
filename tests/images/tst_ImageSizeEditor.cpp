#include "tests/images/ImageSheet.h"

#include <QApplication>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The editor of the outer size of images, in the property sheet and with the plug-in as it is shipped.
class tst_ImageSizeEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<ImageSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void itShowsTheSizeAboveAButton()
    {
        m_sheet->select({m_sheet->add({}, {{QStringLiteral("size"), QStringLiteral("12.5,30")}})});
        QCOMPARE(editor()->className(), QStringLiteral("ImageSizeEditor"));
        QVERIFY(editor()->classNames().contains(QStringLiteral("ImageSizeEditor")));
        QCOMPARE(size()->value(), QSizeF(12.5, 30));
        QCOMPARE(size()->widthField()->text(), QStringLiteral("12.5 px"));
        QCOMPARE(size()->widthField()->minimum(), 1.0);
        QCOMPARE(size()->heightField()->maximum(), 99999.0);
        QCOMPARE(size()->widthField()->decimals(), 2);
        QCOMPARE(button()->text(), QStringLiteral("Set to Image Size"));
        QVERIFY(!button()->isDefault());
        QVERIFY(!button()->autoDefault());
        QVERIFY(button()->mapTo(editor(), QPoint()).y() >= size()->mapTo(editor(), QPoint()).y() + size()->height());
        QVERIFY(editor()->rect().contains(QRect(button()->mapTo(editor(), QPoint()), button()->size())));
        QCOMPARE(editor()->editorValue(), QStringLiteral("12.5,30"));
    }

    void typedSizesAreSteps()
    {
        DesignerObject* image = m_sheet->add();
        m_sheet->select({image});
        m_sheet->enter(size()->widthField(), "120");
        QCOMPARE(value(image, "boundingSize"), QStringLiteral("120,200"));
        QCOMPARE(value(image, "size"), QStringLiteral("120,200"));
        m_sheet->enter(size()->heightField(), "0.5");
        QCOMPARE(value(image, "size"), QStringLiteral("120,1"));
        m_sheet->enter(size()->heightField(), "+=9");
        QCOMPARE(value(image, "size"), QStringLiteral("120,10"));
        QCOMPARE(m_sheet->stack()->count(), 3);
        QVERIFY(m_sheet->session->undo().accepted);
        QCOMPARE(size()->value(), QSizeF(120, 1));
    }

    void withAKeptRatioTheOtherSideFollows()
    {
        DesignerObject* image = m_sheet->add();
        m_sheet->set(image, "keepRatio", QStringLiteral("2"));
        m_sheet->stack()->clear();
        m_sheet->select({image});
        m_sheet->enter(size()->widthField(), "50");
        QCOMPARE(value(image, "size"), QStringLiteral("50,25"));
        QCOMPARE(size()->value(), QSizeF(50, 25));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void theButtonIsEnabledWithAPictureFromTheStart_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("enabled");
        const QSize natural(30, 20);
        const QByteArray png = SamplePictures::quarters(natural, "png");
        QTest::newRow("png") << QStringLiteral("a.png") << png << true;
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << SamplePictures::quarters(natural, "jpg") << true;
        QTest::newRow("webp") << QStringLiteral("a.webp") << SamplePictures::quarters(natural, "webp") << true;
        QTest::newRow("bmp") << QStringLiteral("a.bmp") << SamplePictures::quarters(natural, "bmp") << true;
        QTest::newRow("gif") << QStringLiteral("a.gif") << SamplePictures::gif(natural, {Qt::red, Qt::blue}) << true;
        QTest::newRow("svg") << QStringLiteral("a.svg") << SamplePictures::drawnQuarters(natural) << true;
        QTest::newRow("no link") << QString() << QByteArray() << false;
        QTest::newRow("missing") << QStringLiteral("b.png") << QByteArray() << false;
        QTest::newRow("broken") << QStringLiteral("c.png") << QByteArray("hello") << false;
        QTest::newRow("cut off") << QStringLiteral("d.png") << png.chopped(20) << false;
        QTest::newRow("bomb") << QStringLiteral("e.png") << SamplePictures::greyPng({60000, 60000}) << false;
        QTest::newRow("a drawing without size") << QStringLiteral("b.svg") << QByteArray("<svg/>") << false;
    }

    void theButtonIsEnabledWithAPictureFromTheStart()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(bool, enabled);
        if (!content.isEmpty())
            m_sheet->files.add(name.toUtf8().constData(), content);
        else if (!name.isEmpty())
            m_sheet->files.offer(name);
        DesignerObject* image = m_sheet->add(name);
        m_sheet->select({image});
        QCOMPARE(button()->isEnabled(), enabled);
        m_sheet->click();
        QCOMPARE(value(image, "size"), enabled ? QStringLiteral("30,20") : QStringLiteral("200,200"));
        QCOMPARE(m_sheet->stack()->count(), enabled ? 1 : 0);
    }

    void theButtonFollowsTheSelection()
    {
        DesignerObject* with = m_sheet->add(m_sheet->files.addPng("a.png", {30, 20}));
        DesignerObject* without = m_sheet->add();
        m_sheet->select({without});
        QVERIFY(!button()->isEnabled());
        m_sheet->select({with});
        QVERIFY(button()->isEnabled());
        m_sheet->select({without});
        QVERIFY(!button()->isEnabled());
        m_sheet->select({without, with});
        QVERIFY(button()->isEnabled());
        m_sheet->select({without, m_sheet->add()});
        QVERIFY(!button()->isEnabled());
    }

    void theButtonFollowsTheSource()
    {
        const QString png = m_sheet->files.addPng("a.png", {30, 20});
        m_sheet->files.offer(QStringLiteral("missing.png"));
        DesignerObject* image = m_sheet->add();
        m_sheet->select({image});
        QVERIFY(!button()->isEnabled());
        m_sheet->set(image, "source", png);
        QVERIFY(button()->isEnabled());
        m_sheet->set(image, "source", QStringLiteral("missing.png"));
        QVERIFY(!button()->isEnabled());
        QVERIFY(m_sheet->session->undo().accepted);
        QVERIFY(button()->isEnabled());
        QVERIFY(m_sheet->session->undo().accepted);
        QVERIFY(!button()->isEnabled());
        // The last of several to lose its picture.
        m_sheet->set(image, "source", png);
        DesignerObject* other = m_sheet->add(png);
        m_sheet->select({image, other});
        m_sheet->set(image, "source", {});
        QVERIFY(button()->isEnabled());
        m_sheet->set(other, "source", {});
        QVERIFY(!button()->isEnabled());
    }

    void theButtonFollowsTheFile()
    {
        const QString png = m_sheet->files.addPng("a.png", {30, 20});
        m_sheet->select({m_sheet->add(png)});
        QVERIFY(button()->isEnabled());
        QVERIFY(QFile::remove(m_sheet->files.path(png)));
        Q_EMIT m_sheet->session->project()->imageFileChanged(png);
        QVERIFY(!button()->isEnabled());
        m_sheet->files.addPng("a.png", {60, 40});
        Q_EMIT m_sheet->session->project()->imageFileChanged(png);
        QVERIFY(button()->isEnabled());
    }

    void aClickTakesTheSizeOfThePictureInOneStep()
    {
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->select({image});
        m_sheet->click();
        QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
        QCOMPARE(value(image, "boundingSize"), QStringLiteral("300,150"));
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("0"));
        QCOMPARE(size()->value(), QSizeF(300, 150));
        QCOMPARE(m_sheet->stack()->count(), 1);
        QCOMPARE(m_sheet->stack()->undoText(), QStringLiteral("Set to Image Size"));
        QVERIFY(m_sheet->session->undo().accepted);
        QCOMPARE(value(image, "size"), QStringLiteral("200,200"));
        QCOMPARE(size()->value(), QSizeF(200, 200));
        QVERIFY(m_sheet->session->redo().accepted);
        QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
    }

    void aClickWritesTheSizeAndNotTheOuterOne()
    {
        // Had the outer size been written, the locked ratio of the element would have bent it.
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->set(image, "keepRatio", QStringLiteral("2"));
        m_sheet->set(image, "size", QStringLiteral("80,80"));
        m_sheet->stack()->clear();
        m_sheet->select({image});
        m_sheet->click();
        QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("2"));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void aClickAtThePicturesSizeDoesNothing()
    {
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->select({image});
        m_sheet->click();
        m_sheet->click();
        QCOMPARE(m_sheet->stack()->count(), 1);
        // Compared are whole numbers, as they are shown.
        m_sheet->set(image, "size", QStringLiteral("300.4,149.6"));
        m_sheet->stack()->clear();
        m_sheet->click();
        QCOMPARE(m_sheet->stack()->count(), 0);
        QCOMPARE(value(image, "size"), QStringLiteral("300.4,149.6"));
        // With another ratio locked there is nothing to do either.
        m_sheet->set(image, "size", QStringLiteral("300,150"));
        m_sheet->set(image, "keepRatio", QStringLiteral("1"));
        m_sheet->stack()->clear();
        m_sheet->click();
        QCOMPARE(m_sheet->stack()->count(), 0);
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("1"));
    }

    void aLockedRatioFollowsThePictureInTheSameStep()
    {
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->set(image, "keepRatio", QStringLiteral("1"));
        m_sheet->stack()->clear();
        m_sheet->select({image});
        m_sheet->click();
        QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
        QCOMPARE(value(image, "boundingSize"), QStringLiteral("300,150"));
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("2"));
        QCOMPARE(m_sheet->stack()->count(), 1);
        QCOMPARE(m_sheet->stack()->undoText(), QStringLiteral("Set to Image Size"));
        QVERIFY(m_sheet->session->undo().accepted);
        QCOMPARE(value(image, "size"), QStringLiteral("200,200"));
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("1"));
        QVERIFY(m_sheet->session->redo().accepted);
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("2"));
        // From now on that ratio is kept.
        m_sheet->enter(size()->widthField(), "100");
        QCOMPARE(value(image, "size"), QStringLiteral("100,50"));
    }

    void aRatioThatIsNoneStaysAsItIs()
    {
        for (const char* ratio : {"-1", "wide", ""}) {
            DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
            m_sheet->set(image, "keepRatio", QString::fromLatin1(ratio));
            const QString before = value(image, "keepRatio");
            m_sheet->select({image});
            m_sheet->click();
            QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
            QCOMPARE(value(image, "keepRatio"), before);
        }
    }

    void withSeveralSelectedEachTakesItsOwnSizeInOneStep()
    {
        DesignerObject* one = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        DesignerObject* two = m_sheet->add(m_sheet->files.addPng("b.png", {40, 50}));
        DesignerObject* none = m_sheet->add();
        m_sheet->set(two, "keepRatio", QStringLiteral("3"));
        m_sheet->stack()->clear();
        m_sheet->select({none, one, two});
        m_sheet->click();
        QCOMPARE(value(one, "size"), QStringLiteral("300,150"));
        QCOMPARE(value(two, "size"), QStringLiteral("40,50"));
        QCOMPARE(value(two, "keepRatio"), QStringLiteral("3"));
        QCOMPARE(value(none, "size"), QStringLiteral("200,200"));
        QCOMPARE(m_sheet->stack()->count(), 1);
        m_sheet->click();
        QCOMPARE(m_sheet->stack()->count(), 1);
        QVERIFY(m_sheet->session->undo().accepted);
        QCOMPARE(value(one, "size"), QStringLiteral("200,200"));
        QCOMPARE(value(two, "size"), QStringLiteral("200,200"));
        QVERIFY(m_sheet->session->redo().accepted);
        QCOMPARE(value(one, "boundingSize"), QStringLiteral("300,150"));
    }

    void withSeveralSelectedATypedWidthGoesToAll()
    {
        DesignerObject* one = m_sheet->add();
        DesignerObject* two = m_sheet->add({}, {{QStringLiteral("size"), QStringLiteral("40,50")}});
        m_sheet->select({one, two});
        m_sheet->enter(size()->widthField(), "70");
        QCOMPARE(value(one, "size"), QStringLiteral("70,200"));
        QCOMPARE(value(two, "size"), QStringLiteral("70,50"));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void theButtonWorksByKeyboard()
    {
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->select({image});
        button()->setFocus();
        QTest::keyClick(button(), Qt::Key_Space);
        QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
        // Enter in a field does not press it.
        m_sheet->enter(size()->widthField(), "90");
        QCOMPARE(value(image, "size"), QStringLiteral("90,150"));
    }

    void aWidthThatIsBeingTypedIsTakenBeforeTheClick()
    {
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->select({image});
        SheetFixture::type(size()->widthField(), "77");
        button()->setFocus(); // what a click on it does first
        m_sheet->click();
        QCOMPARE(value(image, "size"), QStringLiteral("300,150"));
        QVERIFY(m_sheet->session->undo().accepted);
        QCOMPARE(value(image, "size"), QStringLiteral("77,200"));
        QCOMPARE(m_sheet->stack()->count(), 2);
    }

    void anImageMayGoWhileItIsShown()
    {
        DesignerObject* image = m_sheet->add(m_sheet->files.addPng("a.png", {300, 150}));
        m_sheet->select({image});
        QVERIFY(m_sheet->session->removeElements({image}).accepted);
        Q_EMIT m_sheet->session->project()->imageFileChanged(QStringLiteral("a.png"));
        QVERIFY(m_sheet->session->undo().accepted);
        m_sheet->select({image});
        QVERIFY(button()->isEnabled());
    }

private:
    [[nodiscard]] PropertyEditor* editor() const { return m_sheet->editor(); }
    [[nodiscard]] SizeWidget* size() const { return m_sheet->size(); }
    [[nodiscard]] QPushButton* button() const { return m_sheet->button(); }
    static QString value(const DesignerObject* object, const char* id) { return ImageSheet::value(object, id); }

    std::unique_ptr<ImageSheet> m_sheet;
};

QTEST_MAIN(tst_ImageSizeEditor)
#include "tst_ImageSizeEditor.moc"
