#pragma once

#include "tests/runtime/DisplaySheet.h"

#include <QtCore/QVariantMap>

#include <functional>
#include <memory>
#include <utility>

/** A display type as its tests see it. Values stand by property name. */
struct DisplayType
{
    QString name;
    /** Every property that the type declares beyond those of all elements, with its value in a new item. */
    QVariantMap defaults;
    /** An item of about 100 × 75 in which every property shows; what each test starts from. */
    QVariantMap sample;
    /** For every property, width and height included where they matter, a value that changes the sample's picture. */
    QVariantMap changes;
    /** What makes the sample many times larger than the screen. */
    QVariantMap huge;
    /** Values far outside of what a designer writes, still drawn as on the canvas. */
    QList<std::pair<QString, QVariant>> extremes;
    /** Values with which the type shows nothing. */
    QList<std::pair<QString, QVariant>> invisible;
    /** Arbitrary values of the properties; to be called within a property test. */
    std::function<QVariantMap()> someValues;
    /** Draws an item at the origin by the function that draws the element on the canvas. */
    std::function<void(const QQuickItem&, QPainter*)> paint;
    /** The content, in item coordinates, on which the fixed point lies; the item's rectangle where there is none here.
     *  A null rectangle turns about the item's origin in any case. */
    std::function<QRectF(const QQuickItem&)> content;
    /** What the item covers, in its coordinates, apart from a border; the content where there is none here. */
    std::function<QRectF(const QQuickItem&)> outline;
    /**
     * How many pixels may differ by more than the rounding of translucent colours. The rasterizer rounds coordinates to
     * 1/64 pixel; when a corner's coordinate lies on the limit, moving the shape by a whole number of pixels may turn the
     * rounding. Seen once in tens of thousands of shapes.
     */
    int strayPixels = 4;
    /** The same when the item is turned. */
    int strayPixelsWhenTurned = 4;
};

/**
 * What holds for every type that is drawn: its picture is the one that the painting functions make, whatever is set,
 * wherever it stands. The test of a type derives from this class and adds what is particular to it.
 */
class DisplayTypeTest : public QObject
{
    Q_OBJECT

public:
    explicit DisplayTypeTest(DisplayType type);
    ~DisplayTypeTest() override;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theTableNamesEveryProperty();
    void defaultsAreThoseOfTheElement();
    void looksAsPaintedOnTheCanvas();
    void looksAsPaintedWhenTurned();
    void followsItsAncestors();
    void everyPropertyIsLive_data();
    void everyPropertyIsLive();
    void sameValueIsNoChange();
    void hiddenChangesShowLater();
    void repaintsOnlyWhenItsPixelsChange();
    void unknownFixedPointIsRefused();
    void aHugeItemIsPaintedWhereItShows();
    void extremeValuesAreDrawnAsOnTheCanvas_data();
    void extremeValuesAreDrawnAsOnTheCanvas();
    void senselessValuesShowNothing_data();
    void senselessValuesShowNothing();

protected:
    /** By how much a channel may differ from the painted picture: rounding of translucent colours. */
    static constexpr int Tolerance = 8;

    [[nodiscard]] DisplaySheet& sheet() const { return *m_sheet; }
    [[nodiscard]] QQuickItem& item() const { return *m_sheet->item(); }
    /** Sets each of @p values. */
    void setValues(const QVariantMap& values) const;
    [[nodiscard]] QRectF content() const;
    [[nodiscard]] QRectF outline() const;
    /** The picture that the painting functions make of the item. */
    [[nodiscard]] QImage painted() const;
    /** True when the running picture is the painted one. */
    [[nodiscard]] bool looksAsPainted() const;
    /** True when nothing but the screen's colour is shown. */
    [[nodiscard]] bool isBlank() const;

private:
    const DisplayType m_type;
    std::unique_ptr<DisplaySheet> m_sheet;
};
