#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// The canvas item of the text box, with the real plug-in, mouse and keyboard.
class tst_GraphicsTextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_canvas = std::make_unique<CanvasFixture>(); }

    void cleanup() { m_canvas.reset(); }

    void itCanBeSelectedMovedAndResizedButNotRotated()
    {
        const DesignerObject* box = addBox();
        const GraphicsItem* item = box->graphicsItem();
        QCOMPARE(item->className(), QStringLiteral("GraphicsTextBox"));
        QCOMPARE(item->classNames(), (QStringList{QStringLiteral("GraphicsItem"), QStringLiteral("GraphicsTextBox")}));
        QVERIFY(item->isResizable() && !item->isRotatable());
        QCOMPARE(m_canvas->graphic(box)->boundingRect(), QRectF(0, 0, 200, 60));
    }

    void itPaintsWhatThePaintHelperPaints()
    {
        DesignerObject* box = addBox();
        m_canvas->set(box, "text", QStringLiteral("Water 42 °C"));
        m_canvas->set(box, "alignment", QStringLiteral("132"));
        m_canvas->set(box, "color", QStringLiteral("#204080"));
        m_canvas->set(box, "textStyle", QStringLiteral("textStyle: Raised; styleColor: #ffcc00;"));
        const QImage expected = picture([](QPainter* painter) {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPixelSize(20);
            Common::PaintHelper::paintTextBox(QSizeF(200, 60), font, QPen(QColor(0x20, 0x40, 0x80)),
                                              QStringLiteral("Water 42 °C"), 132, QStringLiteral("Raised"),
                                              QPen(QColor(0xff, 0xcc, 0x00)), painter);
        });
        QVERIFY(expected != picture([](QPainter*) {}));
        QCOMPARE(pictureOf(box), expected);
    }

    void anUnknownStyleKeepsTheOneBeforeButTakesItsColour()
    {
        DesignerObject* box = addBox();
        m_canvas->set(box, "textStyle", QStringLiteral("textStyle: Sunken; styleColor: #0000ff;"));
        m_canvas->set(box, "textStyle", QStringLiteral("textStyle: Glow; styleColor: #00aa00;"));
        const QImage shown = pictureOf(box);
        m_canvas->set(box, "textStyle", QStringLiteral("textStyle: Sunken; styleColor: #00aa00;"));
        QCOMPARE(pictureOf(box), shown);
    }

    void valuesThatDoNotConvertLeaveThePictureAsItIs()
    {
        DesignerObject* box = addBox();
        const QImage before = pictureOf(box);
        for (const char* property : {"size", "color", "font", "alignment", "textStyle"}) {
            m_canvas->set(box, property, QStringLiteral("garbage"));
            QCOMPARE(pictureOf(box), before);
        }
    }

    void aSizeBelowOneIsKeptByThePropertyAndIgnoredByTheItem()
    {
        DesignerObject* box = addBox();
        m_canvas->set(box, "size", QStringLiteral("0.5,10"));
        QCOMPARE(m_canvas->value(box, "size"), QStringLiteral("0.5,10"));
        QCOMPARE(m_canvas->graphic(box)->boundingRect(), QRectF(0, 0, 200, 60));
        m_canvas->set(box, "size", QStringLiteral("1,1"));
        QCOMPARE(m_canvas->graphic(box)->boundingRect(), QRectF(0, 0, 1, 1));
    }

    void theSameSizeWritesNoOuterSize()
    {
        DesignerObject* box = addBox();
        QSignalSpy changes(m_canvas->project, &Project::objectPropertyChanged);
        m_canvas->set(box, "size", QStringLiteral("200,60"));
        QVERIFY(changes.isEmpty());
    }

    void eachFrameHandleKeepsItsCornerAndTheRatio_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<QSizeF>("proposed");
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QPointF>("moved");
        const QSizeF wide(100, 44);
        QTest::newRow("top left") << 0 << wide << QSizeF(100, 50) << QPointF(100, 10);
        QTest::newRow("top") << 1 << QSizeF(200, 44) << QSizeF(88, 44) << QPointF(0, 16);
        QTest::newRow("top right") << 2 << wide << QSizeF(100, 50) << QPointF(0, 10);
        QTest::newRow("left") << 3 << wide << QSizeF(100, 50) << QPointF(100, 0);
        QTest::newRow("centre") << 4 << wide << QSizeF(200, 60) << QPointF(0, 0);
        QTest::newRow("right") << 5 << wide << QSizeF(100, 50) << QPointF(0, 0);
        QTest::newRow("bottom left") << 6 << wide << QSizeF(100, 50) << QPointF(100, 0);
        QTest::newRow("bottom") << 7 << QSizeF(200, 44) << QSizeF(88, 44) << QPointF(0, 0);
        QTest::newRow("bottom right") << 8 << wide << QSizeF(100, 50) << QPointF(0, 0);
        QTest::newRow("no handle") << 9 << wide << QSizeF(200, 60) << QPointF(0, 0);
        // Neither side falls below 1, and the ratio is kept.
        QTest::newRow("top, too low") << 1 << QSizeF(200, 0.2) << QSizeF(2, 1) << QPointF(0, 59);
        QTest::newRow("right, too narrow") << 5 << QSizeF(0.2, 60) << QSizeF(2, 1) << QPointF(0, 0);
    }

    void eachFrameHandleKeepsItsCornerAndTheRatio()
    {
        QFETCH(int, handle);
        QFETCH(QSizeF, proposed);
        QFETCH(QSizeF, size);
        QFETCH(QPointF, moved);
        DesignerObject* box = addBox();
        m_canvas->set(box, "keepRatio", QStringLiteral("2"));
        GraphicsItem* item = box->graphicsItem();
        item->setChangingSize(true);
        item->resizeGraphicsItem(handle, proposed, QPointF());
        item->setChangingSize(false);
        QCOMPARE(item->outerRect().size(), size);
        QCOMPARE(m_canvas->graphic(box)->pos(), QPointF(100, 100) + moved);
    }

    void aDragOfTheFrameIsOneStep()
    {
        DesignerObject* box = addBox();
        m_canvas->select({box});
        m_canvas->drag({300, 160}, {340, 180});
        QCOMPARE(m_canvas->value(box, "size"), QStringLiteral("240,80"));
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->session->undo();
        QCOMPARE(m_canvas->value(box, "size"), QStringLiteral("200,60"));
        QCOMPARE(m_canvas->graphic(box)->boundingRect(), QRectF(0, 0, 200, 60));
    }

    void eachKeyChangesTheFontInOneStep_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("keypad");
        QTest::addColumn<QString>("part");
        QTest::newRow("bold") << int(Qt::Key_B) << false << QStringLiteral("bold: true;");
        QTest::newRow("italic") << int(Qt::Key_I) << false << QStringLiteral("italic: true;");
        QTest::newRow("strike-out") << int(Qt::Key_S) << false << QStringLiteral("strikeOut: true;");
        QTest::newRow("underline") << int(Qt::Key_U) << false << QStringLiteral("underline: true;");
        QTest::newRow("overline") << int(Qt::Key_O) << false << QStringLiteral("overline: true;");
        QTest::newRow("smaller") << int(Qt::Key_Minus) << false << QStringLiteral("pixelSize: 19;");
        QTest::newRow("larger") << int(Qt::Key_Equal) << false << QStringLiteral("pixelSize: 21;");
        QTest::newRow("larger, keypad") << int(Qt::Key_Plus) << true << QStringLiteral("pixelSize: 21;");
        QTest::newRow("smaller, keypad") << int(Qt::Key_Minus) << true << QStringLiteral("pixelSize: 19;");
    }

    void eachKeyChangesTheFontInOneStep()
    {
        QFETCH(int, key);
        QFETCH(bool, keypad);
        QFETCH(QString, part);
        DesignerObject* box = addBox();
        const QString before = m_canvas->value(box, "font");
        const QImage shown = pictureOf(box);
        m_canvas->select({box});
        m_canvas->key(key, keypad ? Qt::AltModifier | Qt::KeypadModifier : Qt::AltModifier);
        QVERIFY2(m_canvas->value(box, "font").contains(part), qPrintable(m_canvas->value(box, "font")));
        QVERIFY(pictureOf(box) != shown);
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Change Font"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->value(box, "font"), before);
        QCOMPARE(pictureOf(box), shown);
    }

    void atItsLimitASizeKeyMakesNoStep()
    {
        DesignerObject* box = addBox();
        m_canvas->select({box});
        m_canvas->set(box, "font", QStringLiteral("family: DejaVu Sans; pixelSize: 6;"));
        m_canvas->key(Qt::Key_Minus, Qt::AltModifier);
        m_canvas->set(box, "font", QStringLiteral("family: DejaVu Sans; pixelSize: 999;"));
        m_canvas->key(Qt::Key_Equal, Qt::AltModifier);
        QCOMPARE(m_canvas->value(box, "font"), QStringLiteral("family: DejaVu Sans; pixelSize: 999;"));
        QCOMPARE(m_canvas->steps(), 0);
    }

    void oneKeyForSeveralBoxesIsOneStep()
    {
        DesignerObject* first = addBox();
        DesignerObject* second = addBox();
        m_canvas->select({first, second});
        m_canvas->key(Qt::Key_U, Qt::AltModifier);
        for (const DesignerObject* box : {first, second})
            QVERIFY(m_canvas->value(box, "font").contains(QLatin1String("underline: true;")));
        QCOMPARE(m_canvas->steps(), 1);
    }

    void itsToolTipNamesIt()
    {
        DesignerObject* box = addBox();
        m_canvas->view->grab();
        QCOMPARE(m_canvas->graphic(box)->toolTip(), QStringLiteral("Text Box: textBox1"));
    }

private:
    DesignerObject* addBox()
    {
        DesignerObject* box =
            m_canvas->add("TextBox", {{QStringLiteral("position"), QStringLiteral("100,100")},
                                      {QStringLiteral("size"), QStringLiteral("200,60")},
                                      {QStringLiteral("font"), QStringLiteral("family: DejaVu Sans; pixelSize: 20;")}});
        m_canvas->select({});
        return box;
    }

    static QImage picture(const std::function<void(QPainter*)>& paint)
    {
        QImage image(220, 80, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.translate(10, 10);
        paint(&painter);
        return image;
    }

    static QImage pictureOf(const DesignerObject* box)
    {
        return picture([box](QPainter* painter) {
            const QStyleOptionGraphicsItem option;
            CanvasFixture::graphic(box)->paint(painter, &option, nullptr);
        });
    }

    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_GraphicsTextBox)
#include "tst_GraphicsTextBox.moc"
