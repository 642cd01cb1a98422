// The root of an export. As with Screen, this file makes it load Qt Quick.
import Meridane.Display
import QtQuick

DisplayRoot {
}
