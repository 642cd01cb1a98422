// The root of an exported screen. It is this file, and not the C++ type alone, that makes a screen load Qt Quick: without
// it QML cannot turn text into colours, and a screen imports nothing but Meridane.Display.
import Meridane.Display
import QtQuick

ScreenItem {
}
