#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QString>

#include <functional>

/// A screen full of elements on which the running display is compared with the canvas.
struct Sheet
{
    QString name;
    QJsonArray edits; ///< what fills an empty screen of 320 × 240
};

/// Values for the sheets: the same ones in every run.
class SheetValues
{
public:
    explicit SheetValues(quint32 seed);

    /// From \a low to \a high, both included.
    int whole(int low, int high);
    /// From \a low to \a high as a text, with no, one or two decimals.
    QString real(double low, double high);
    /// Two of them, separated by a comma: a position or a size.
    QString pair(double lowX, double highX, double lowY, double highY);
    /// Any colour; one in two is opaque.
    QString color();
    /// Up to \a widest pixels, one in three without width.
    QString border(int widest);
    /// About each of the nine points in turn; one in three by a multiple of 90 degrees.
    QString rotation();

private:
    QRandomGenerator m_random;
    std::size_t m_rotations = 0;
};

/// \a count edits, each adding an element with the properties that \a properties makes from a number from 0.
QJsonArray addElements(const char* className, int count, const std::function<QJsonObject(int)>& properties);
