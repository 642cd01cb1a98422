#pragma once

#include "tests/shapes/ShapeFixture.h"

#include <QObject>

#include <memory>

namespace Korvex::Meridane::Designer::Test {

/**
 * What rectangle and ellipse have in common: how "size" follows "boundingSize", the outer rectangle, and what becomes of
 * values that make no sense. The test of an element derives from this class and adds what is particular to it.
 */
class FramedShapeTest : public QObject
{
    Q_OBJECT

public:
    FramedShapeTest();
    ~FramedShapeTest() override;

private Q_SLOTS:
    void init();
    void cleanup();
    void theSizeFollowsTheOuterSize_data();
    void theSizeFollowsTheOuterSize();
    void anyOuterSizeIsFollowedByTheRules();
    void aHeightStaysAsTypedWhenItsWidthWasCompletedAndRounded();
    void theOuterSizeThatIsThereAlreadyIsReportedAndChangesNothing();
    void anOuterSizeThatDoesNotConvertIsInertAndTheNextOneIsNot();
    void withoutACanvasItemTheSizeStays();
    void anItemOfAnotherShapeIsNotFollowed();
    void whileTheItemChangesSizeTheElementDoesNotReact();
    void aRatioThatLeadsBeyondAllNumbersChangesNothing();
    void otherPropertiesDoNotTouchTheSize();
    void theBoundingRectangleIsGrownByHalfTheBorder();
    void valuesThatDoNotConvertAreKeptAndInert_data();
    void valuesThatDoNotConvertAreKeptAndInert();
    void noPropertyIsNoChange();

protected:
    [[nodiscard]] virtual std::unique_ptr<VisualElement> makeElement() const = 0;
    /// Gives the element of shape() the canvas item of its own kind.
    virtual void place() const = 0;
    /// Gives it that of the other one.
    virtual void placeItemOfAnotherShape() const = 0;
    /// The smallest outer side with \a border, in pixels.
    [[nodiscard]] virtual double smallestSide(int border) const = 0;

    [[nodiscard]] ShapeFixture& shape() const { return *m_shape; }
    void setBorder(int width) const;

    /// The columns of checkReaction() and a row: an element of \a size, with \a border and "keepRatio" \a ratio, is given
    /// the outer size \a typed; its size and its outer size are then \a newSize and \a newOuter.
    static void addReactionColumns();
    static void addReactionRow(const char* name, const char* size, int border, const char* ratio, const char* typed,
                               const char* newSize, const char* newOuter);
    void checkReaction() const;

private:
    std::unique_ptr<ShapeFixture> m_shape;
};

} // namespace Korvex::Meridane::Designer::Test
