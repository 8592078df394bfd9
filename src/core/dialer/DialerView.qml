import QtQuick
import QtQuick.Controls

// The dialler tab. Its keypad arrives with the calls feature.
Page { }
