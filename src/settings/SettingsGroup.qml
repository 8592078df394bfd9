import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts

// A white rounded group of rows.
Rectangle {
    default property alias rows: groupColumn.data
    Layout.fillWidth: true
    implicitHeight: groupColumn.implicitHeight
    radius: 10
    color: "white"
    ColumnLayout {
        id: groupColumn
        width: parent.width
        spacing: 0
    }
}
