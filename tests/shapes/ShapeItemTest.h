#pragma once

#include "tests/canvas/CanvasFixture.h"

#include <QImage>
#include <QObject>

#include <functional>
#include <memory>

namespace Korvex::Meridane::Designer::Test {

/**
 * What holds for the canvas item of every shape, on a real canvas and with the real plug-in. The test of an item derives
 * from this class and adds what is particular to it.
 */
class ShapeItemTest : public QObject
{
    Q_OBJECT

public:
    using Values = QMap<QString, QString>;

    /// \a sample: values of an element about 100 x 80 pixels large, with a border.
    ShapeItemTest(const char* className, const Values& sample);
    ~ShapeItemTest() override;

private Q_SLOTS:
    void init();
    void cleanup();
    void itCanBeSelectedMovedResizedAndRotated();
    void itsToolTipNamesItAndItsHandles();
    void itsHandlesSitOnTheFrame();
    void aRotatedOneHasNoHandlesButAWholeTurnIsNone();
    void oneThatIsSmallOnTheScreenHasNoHandles();
    void numbersThatAreNoHandleChangeNothing();
    void anUntouchedItemWritesNothingBack();
    void textsThatDoNotConvertLeaveTheItemAsItIs();
    void everyChangeIsRepainted();
    void aSelectedOneHasAFrame();
    void itsOutlineTurnsAboutEachFixedPointOfTheContent();
    void itsOutlineHoldsEveryPixelThatIsDrawn();
    void undoOfATypedOuterSizeRestoresEveryValue();
    void anOuterSizeThatIsThereAlreadyMakesNoStep();

protected:
    /// The content's size, in pixels, that an element has with these values.
    [[nodiscard]] virtual QSizeF contentSize(const Values& values) const = 0;
    /// Arbitrary values of size and border, no larger than 100 pixels and no wider than 20; within a property test.
    [[nodiscard]] virtual Values someValues() const = 0;
    /// By how much, in pixels, what is drawn with \a values may stand out of getShape().
    [[nodiscard]] virtual double outlineExcess(const Values& values) const = 0;

    [[nodiscard]] CanvasFixture& canvas() const { return *m_canvas; }
    /// Adds an element at (100, 100), not selected.
    DesignerObject* add(const Values& values) const;
    DesignerObject* addSample() const { return add(m_sample); }
    void set(DesignerObject* object, const QByteArray& property, const QString& value) const;
    void set(DesignerObject* object, const QByteArray& property, const char* value) const;
    [[nodiscard]] static QString value(const DesignerObject* object, const QByteArray& property);
    [[nodiscard]] static QGraphicsItem* graphic(const DesignerObject* object) { return CanvasFixture::graphic(object); }
    [[nodiscard]] static int handleAt(const DesignerObject* object, const QPointF& scenePos);
    [[nodiscard]] static Values border(int width, const QColor& color = Qt::black);

    /// What \a paint draws on a white ground of 200 x 200 pixels, the origin of its coordinates being at (50, 50).
    [[nodiscard]] static QImage picture(const std::function<void(QPainter*)>& paint);
    /// The same of an item, drawn as \a selected or not.
    [[nodiscard]] static QImage picture(QGraphicsItem* graphic, bool selected = false);
    [[nodiscard]] static QImage blank();

    /// Fails the running test unless undo and redo of a typed outer size give back every value byte by byte.
    void compareUndoOfOuterSize(DesignerObject* object, const QString& typed) const;

private:
    void assertOutlineHoldsEveryPixel(const DesignerObject* object, double excess) const;

    const char* m_className;
    const Values m_sample;
    std::unique_ptr<CanvasFixture> m_canvas;
};

} // namespace Korvex::Meridane::Designer::Test
