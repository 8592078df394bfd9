import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts

// The caption above a group of rows of the settings screen.
Label {
    Layout.fillWidth: true
    Layout.leftMargin: 16
    Layout.topMargin: 14
    font.pixelSize: 13
    font.capitalization: Font.AllUppercase
    color: "#6C6C70"
    Accessible.role: Accessible.Heading
}
