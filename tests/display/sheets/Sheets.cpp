#include "tests/display/sheets/Sheets.h"

QList<Sheet> allSheets()
{
    return rectangleSheets() + ellipseSheets() + polygonSheets() + lineSheets() + irregularPolygonSheets()
           + textSheets() + gradientSheets() + imageSheets();
}
