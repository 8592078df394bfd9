import QtQuick
import QtQuick.Controls

// The settings tab. Its sections arrive with the settings feature.
Page { }
