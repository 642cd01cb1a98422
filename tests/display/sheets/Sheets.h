#pragma once

#include "tests/display/sheets/Sheet.h"

#include <QList>

/// The sheets of each element; a new element adds a file with its own and a line to allSheets().
QList<Sheet> rectangleSheets();
QList<Sheet> ellipseSheets();
QList<Sheet> polygonSheets();
QList<Sheet> lineSheets();
QList<Sheet> irregularPolygonSheets();
QList<Sheet> textSheets();
QList<Sheet> gradientSheets();
QList<Sheet> imageSheets();

QList<Sheet> allSheets();
