#include "tests/shapes/ShapeItemTest.h"

#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/commands/UndoCommand.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

namespace Korvex::Meridane::Designer::Test {

using Common::PaintHelper;

namespace {

struct FixedPoint
{
    const char* name;
    QPointF place; // in a rectangle of size 1
};

constexpr FixedPoint FixedPoints[] = {{"TopLeft", {0, 0}},    {"Top", {0.5, 0}},      {"TopRight", {1, 0}},
                                      {"Left", {0, 0.5}},     {"Center", {0.5, 0.5}}, {"Right", {1, 0.5}},
                                      {"BottomLeft", {0, 1}}, {"Bottom", {0.5, 1}},   {"BottomRight", {1, 1}}};

QString rotation(double angle, const char* fixedPoint)
{
    return QStringLiteral("angle: %1; fixedPoint: %2;")
        .arg(ValueConversion::toString(angle), QString::fromLatin1(fixedPoint));
}

bool near(const QPointF& a, const QPointF& b)
{
    return (a - b).manhattanLength() <= 1e-9;
}

} // namespace

ShapeItemTest::ShapeItemTest(const char* className, const Values& sample)
    : m_className(className)
    , m_sample(sample)
{}

ShapeItemTest::~ShapeItemTest() = default;

void ShapeItemTest::init()
{
    m_canvas = std::make_unique<CanvasFixture>();
}

void ShapeItemTest::cleanup()
{
    m_canvas.reset();
}

void ShapeItemTest::itCanBeSelectedMovedResizedAndRotated()
{
    const GraphicsItem* item = addSample()->graphicsItem();
    const QString name = QStringLiteral("Graphics") + QLatin1String(m_className);
    QCOMPARE(item->className(), name);
    QCOMPARE(item->classNames(), QStringList({QStringLiteral("GraphicsItem"), name}));
    QCOMPARE(item->graphic()->flags(), QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
    QVERIFY(item->isResizable());
    QVERIFY(item->isRotatable());
}

void ShapeItemTest::itsToolTipNamesItAndItsHandles()
{
    DesignerObject* object = addSample();
    const QRectF frame = graphic(object)->sceneBoundingRect();
    const QString name = object->displayName() + QStringLiteral(": ") + object->getIdName();
    QVERIFY(!picture(graphic(object)).isNull());
    QCOMPARE(graphic(object)->toolTip(), name);
    canvas().select({object});
    QCOMPARE(handleAt(object, frame.bottomRight()), 8);
    QCOMPARE(graphic(object)->toolTip(), QStringLiteral("Drag this point to resize"));
    QCOMPARE(handleAt(object, {frame.left(), frame.center().y()}), 3);
    QCOMPARE(graphic(object)->toolTip(), QStringLiteral("Drag this line to resize"));
    QCOMPARE(handleAt(object, frame.center()), 4);
    QCOMPARE(graphic(object)->toolTip(), name);
    QVERIFY(canvas().session->rename(object, QStringLiteral("sun")).accepted);
    QVERIFY(!picture(graphic(object)).isNull());
    QCOMPARE(graphic(object)->toolTip(), object->displayName() + QStringLiteral(": sun"));
}

void ShapeItemTest::itsHandlesSitOnTheFrame()
{
    DesignerObject* object = addSample();
    const QRectF frame = CanvasFixture::outerRect(object);
    for (int handle = 0; handle <= 8; ++handle) {
        const QPointF place = FixedPoints[handle].place;
        const QPointF at(frame.x() + place.x() * frame.width(), frame.y() + place.y() * frame.height());
        QCOMPARE(handleAt(object, at), handle);
    }
    // The corners of the frame are none of the shape: a click there selects nothing.
    canvas().click(frame.topLeft() + QPointF(2, 2));
    QVERIFY(canvas().selected().isEmpty());
    canvas().click(frame.center());
    QCOMPARE(canvas().selected(), QList<DesignerObject*>({object}));
    // But once it is selected they resize it.
    const QSizeF before = frame.size();
    canvas().drag(frame.bottomRight(), frame.bottomRight() + QPointF(30, 20));
    QVERIFY(std::abs(CanvasFixture::outerRect(object).width() - before.width() - 30) < 1e-9);
    QVERIFY(near(CanvasFixture::outerRect(object).topLeft(), frame.topLeft()));
}

void ShapeItemTest::aRotatedOneHasNoHandlesButAWholeTurnIsNone()
{
    DesignerObject* object = addSample();
    canvas().select({object});
    const QRectF frame = CanvasFixture::outerRect(object);
    for (const double angle : {45.0, 0.1, -90.0, 720.0}) {
        set(object, "rotation", rotation(angle, "TopLeft"));
        QVERIFY(!object->graphicsItem()->hasFrameHandles());
        QCOMPARE(handleAt(object, graphic(object)->mapToScene(graphic(object)->boundingRect().bottomRight())), 4);
        QCOMPARE(graphic(object)->toolTip(), object->graphicsItem()->nameToolTip());
    }
    for (const double angle : {360.0, -360.0, 0.0}) {
        set(object, "rotation", rotation(angle, "TopLeft"));
        QVERIFY(object->graphicsItem()->hasFrameHandles());
        QCOMPARE(handleAt(object, frame.bottomRight()), 8);
    }
}

void ShapeItemTest::oneThatIsSmallOnTheScreenHasNoHandles()
{
    DesignerObject* object = addSample();
    set(object, "border", "width: 0; color: #000000;");
    canvas().select({object});
    set(object, "boundingSize", "10,9");
    QVERIFY(!object->graphicsItem()->hasFrameHandles());
    QCOMPARE(handleAt(object, CanvasFixture::outerRect(object).topLeft()), 4);
    QCOMPARE(graphic(object)->toolTip(), object->graphicsItem()->nameToolTip());
    set(object, "boundingSize", "12.5,12.5");
    QCOMPARE(handleAt(object, CanvasFixture::outerRect(object).topLeft()), 0);
    canvas().view->setZoom(0.5);
    QCOMPARE(handleAt(object, CanvasFixture::outerRect(object).topLeft()), 4);
}

void ShapeItemTest::numbersThatAreNoHandleChangeNothing()
{
    const DesignerObject* object = addSample();
    const QRectF frame = graphic(object)->sceneBoundingRect();
    for (const int none : {4, -1, 9, 2147483647}) {
        object->graphicsItem()->resizeGraphicsItem(none, QSizeF(20, 20), QPointF(3, 4));
        object->graphicsItem()->resizeByMouse(none, QPointF(3, 4));
        QCOMPARE(graphic(object)->sceneBoundingRect(), frame);
    }
}

void ShapeItemTest::anUntouchedItemWritesNothingBack()
{
    const DesignerObject* object = addSample();
    UndoCommand parent;
    for (const auto& property : object->properties())
        QVERIFY2(!object->graphicsItem()->updateDataObject(property, &parent), qPrintable(property->id()));
    QVERIFY(!object->graphicsItem()->updateDataObject({}, &parent));
    QCOMPARE(parent.childCommandCount(), 0);
}

void ShapeItemTest::textsThatDoNotConvertLeaveTheItemAsItIs()
{
    DesignerObject* object = addSample();
    const QImage before = picture(graphic(object));
    const QRectF frame = graphic(object)->boundingRect();
    const QString outer = value(object, "boundingSize");
    for (const auto& property : object->properties()) {
        if (property->id() == QLatin1String("boundingSize"))
            continue;
        QVERIFY(object->changePropertyValue(property, QStringLiteral("garbage")));
        QCOMPARE(property->valueString(), QStringLiteral("garbage"));
    }
    QCOMPARE(graphic(object)->boundingRect(), frame);
    QCOMPARE(graphic(object)->pos(), QPointF(100, 100));
    QCOMPARE(picture(graphic(object)), before);
    QCOMPARE(value(object, "boundingSize"), outer);
}

void ShapeItemTest::everyChangeIsRepainted()
{
    DesignerObject* object = addSample();
    Values changes = border(17, Qt::red);
    changes.insert(QStringLiteral("color"), QStringLiteral("#102030"));
    changes.insert(QStringLiteral("boundingSize"), QStringLiteral("60,60"));
    changes.insert(QStringLiteral("position"), QStringLiteral("130,90"));
    changes.insert(QStringLiteral("rotation"), QStringLiteral("angle: 20; fixedPoint: Center;"));
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        QApplication::processEvents();
        const QImage before = canvas().view->grab().toImage();
        QSignalSpy repaints(canvas().scene(), &QGraphicsScene::changed);
        set(object, it.key().toLatin1(), it.value());
        QTRY_VERIFY2(!repaints.isEmpty(), qPrintable(it.key()));
        QVERIFY2(canvas().view->grab().toImage() != before, qPrintable(it.key()));
    }
}

void ShapeItemTest::aSelectedOneHasAFrame()
{
    const DesignerObject* object = addSample();
    const QImage plain = picture(graphic(object));
    QVERIFY(plain != blank());
    QImage framed = plain;
    {
        QPainter painter(&framed);
        painter.translate(50, 50);
        QStyleOptionGraphicsItem option;
        option.state = QStyle::State_Selected;
        PaintHelper::paintHighlightSelected(object->graphicsItem()->outerRect(), &painter, &option);
    }
    QVERIFY(framed != plain);
    QCOMPARE(picture(graphic(object), true), framed);
}

void ShapeItemTest::itsOutlineTurnsAboutEachFixedPointOfTheContent()
{
    DesignerObject* object = addSample();
    const QSizeF content = contentSize(m_sample);
    const QPainterPath outline = graphic(object)->shape();
    QVERIFY(!outline.isEmpty());
    for (const auto& [name, place] : FixedPoints) {
        const QPointF fixed(place.x() * content.width(), place.y() * content.height());
        for (const double angle : {0.0, 30.0, 90.0, -137.5, 360.0}) {
            set(object, "rotation", rotation(angle, name));
            QTransform turned = QTransform::fromTranslate(fixed.x(), fixed.y());
            turned.rotate(angle);
            turned.translate(-fixed.x(), -fixed.y());
            const QPainterPath expected = turned.map(outline);
            const QPainterPath shape = object->graphicsItem()->getShape();
            // That is also where the canvas shows the item.
            const QPainterPath shown = graphic(object)->mapToScene(outline);
            QCOMPARE(shape.elementCount(), expected.elementCount());
            for (int i = 0; i < shape.elementCount(); ++i) {
                const QPointF point = shape.elementAt(i);
                QVERIFY2(near(point, expected.elementAt(i)), name);
                QVERIFY2(near(point + graphic(object)->pos(), shown.elementAt(i)), name);
            }
        }
    }
}

void ShapeItemTest::itsOutlineHoldsEveryPixelThatIsDrawn()
{
    QVERIFY(rc::check("outline and pixels", [this] {
        Values values = someValues();
        const double angle = *rc::gen::oneOf(
            rc::gen::just(0.0), rc::gen::map(rc::gen::inRange(-3600, 3600), [](int n) { return n / 10.0; }));
        values.insert(QStringLiteral("rotation"), rotation(angle, FixedPoints[*rc::gen::inRange(0, 9)].name));
        values.insert(QStringLiteral("position"), QStringLiteral("350.3,190.8"));
        canvas().session->removeElements(canvas().scene()->selectableElements());
        assertOutlineHoldsEveryPixel(add(values), outlineExcess(values));
    }));
}

void ShapeItemTest::undoOfATypedOuterSizeRestoresEveryValue()
{
    for (const char* typed : {"140,75", "99.9,31.571429", "1,1", "0,0", "-5,300", "1e300,1e300", "wide"}) {
        DesignerObject* object = addSample();
        set(object, "position", "33.333333333333336,28.571428571428573");
        compareUndoOfOuterSize(object, QString::fromLatin1(typed));
        canvas().session->removeElements({object});
        canvas().stack()->clear();
    }
}

void ShapeItemTest::anOuterSizeThatIsThereAlreadyMakesNoStep()
{
    DesignerObject* object = addSample();
    QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
    QVERIFY(
        canvas().session->setProperty(object, QStringLiteral("boundingSize"), value(object, "boundingSize")).accepted);
    QCOMPARE(canvas().steps(), 0);
}

DesignerObject* ShapeItemTest::add(const Values& values) const
{
    Values all = values;
    if (!all.contains(QStringLiteral("position")))
        all.insert(QStringLiteral("position"), QStringLiteral("100,100"));
    DesignerObject* object = canvas().add(m_className, all);
    canvas().select({});
    return object;
}

void ShapeItemTest::set(DesignerObject* object, const QByteArray& property, const QString& value) const
{
    canvas().set(object, property.constData(), value);
}

void ShapeItemTest::set(DesignerObject* object, const QByteArray& property, const char* value) const
{
    canvas().set(object, property.constData(), QString::fromLatin1(value));
}

QString ShapeItemTest::value(const DesignerObject* object, const QByteArray& property)
{
    return CanvasFixture::value(object, property.constData());
}

int ShapeItemTest::handleAt(const DesignerObject* object, const QPointF& scenePos)
{
    bool handled = false;
    const int handle = object->graphicsItem()->getResizeHandle(scenePos, &handled);
    return handled ? handle : -2;
}

ShapeItemTest::Values ShapeItemTest::border(int width, const QColor& color)
{
    return {{QStringLiteral("border"), ValueConversion::toString(BorderInfo(width, color))}};
}

QImage ShapeItemTest::picture(const std::function<void(QPainter*)>& paint)
{
    QImage image = blank();
    QPainter painter(&image);
    painter.translate(50, 50);
    paint(&painter);
    return image;
}

QImage ShapeItemTest::picture(QGraphicsItem* graphic, bool selected)
{
    return picture([graphic, selected](QPainter* painter) {
        QStyleOptionGraphicsItem option;
        option.state.setFlag(QStyle::State_Selected, selected);
        graphic->paint(painter, &option, nullptr);
    });
}

QImage ShapeItemTest::blank()
{
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

void ShapeItemTest::compareUndoOfOuterSize(DesignerObject* object, const QString& typed) const
{
    const auto before = canvas().values();
    const QRectF frame = graphic(object)->sceneBoundingRect();
    QVERIFY(canvas().session->setProperty(object, QStringLiteral("boundingSize"), typed).accepted);
    const auto after = canvas().values();
    QVERIFY(after != before);
    QCOMPARE(canvas().steps(), 1);
    const QRectF newFrame = graphic(object)->sceneBoundingRect();
    for (int i = 0; i < 3; ++i) {
        canvas().session->undo();
        QCOMPARE(canvas().values(), before);
        QCOMPARE(graphic(object)->sceneBoundingRect(), frame);
        canvas().session->redo();
        QCOMPARE(canvas().values(), after);
        QCOMPARE(graphic(object)->sceneBoundingRect(), newFrame);
    }
}

/// All that the screen shows of its one element lies, but for \a excess pixels, in the bounds of getShape(), and those
/// are hardly larger. Without an excess each wholly covered pixel also lies within the outline itself.
void ShapeItemTest::assertOutlineHoldsEveryPixel(const DesignerObject* object, double excess) const
{
    const QImage image = ScreenRenderer::render(canvas().scene());
    const QRgb ground = image.pixel(0, 0);
    QRect shown;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != ground)
                shown |= QRect(x, y, 1, 1);
        }
    }
    RC_ASSERT(!shown.isEmpty());
    RC_ASSERT(image.rect().adjusted(1, 1, -1, -1).contains(shown));

    const QPainterPath outline = object->graphicsItem()->getShape().translated(graphic(object)->pos());
    const QRectF bounds = outline.boundingRect();
    const auto grown = [](const QRectF& rect, double by) { return rect.adjusted(-by, -by, by, by); };
    // The painter is exact to half a pixel, with lines one pixel wide.
    constexpr double Grid = 0.5;
    RC_ASSERT(grown(bounds, excess + Grid).toAlignedRect().contains(shown));
    // A corner may be too thin to be seen, and an odd border counts as one pixel wider.
    constexpr double Slack = 3;
    RC_ASSERT(grown(shown, Slack).contains(bounds));
    if (excess > 0)
        return;
    const QRgb fill = ValueConversion::toColor(value(object, "color")).rgb();
    constexpr int Step = 3;
    for (int y = shown.top(); y <= shown.bottom(); y += Step) {
        for (int x = shown.left(); x <= shown.right(); x += Step) {
            if (image.pixel(x, y) == fill || image.pixel(x, y) == QColor(Qt::black).rgb())
                RC_ASSERT(outline.contains(QPointF(x + 0.5, y + 0.5)));
        }
    }
}

} // namespace Korvex::Meridane::Designer::Test
