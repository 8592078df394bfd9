import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts

// A full-screen cover with a navigation bar whose back button closes it;
// the view inside may also ask to be dismissed.
Popup {
    id: cover
    property bool presented: false
    // Made in the screen's own context (the screen's components are
    // bound to it), so created here rather than through a Loader.
    property Component sourceComponent
    property var view: null
    signal dismiss()

    parent: Overlay.overlay
    x: 0
    y: 0
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    padding: 0
    modal: true
    closePolicy: Popup.CloseOnEscape
    onPresentedChanged: {
        if (presented) {
            view = sourceComponent.createObject(coverHolder)
            if (view)
                view.anchors.fill = coverHolder
            open()
        } else {
            if (view)
                view.destroy()
            view = null
            close()
        }
    }
    onClosed: dismiss()
    background: Rectangle { color: "white" }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        ToolBar {
            Layout.fillWidth: true
            Material.background: "white"
            Material.elevation: 0
            ToolButton {
                objectName: "coverBackButton"
                icon.source: "qrc:/Quieton/icons/chevron.left.svg"
                icon.color: "#007AFF"
                Accessible.name: qsTr("Back")
                onClicked: cover.close()
            }
        }
        Item {
            id: coverHolder
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
    Connections {
        target: cover.view
        ignoreUnknownSignals: true
        function onDismissRequested() { cover.close() }
    }
}
