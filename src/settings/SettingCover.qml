import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton.Core

// A full-screen cover shown while `presented` is true, with a back button;
// the view inside may also ask to be closed (dismissRequested). However it
// closes, `dismiss()` tells the owner. The view lives while the cover is open.
Popup {
    id: cover
    property bool presented: false
    property string title
    // Made in the screen's own context (the screen's components are bound
    // to it), so created here rather than through a Loader.
    property Component sourceComponent
    property Item view: null
    signal dismiss()

    parent: Overlay.overlay
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    padding: 0
    modal: true
    closePolicy: Popup.CloseOnEscape
    visible: cover.presented
    onAboutToShow: {
        cover.view = cover.sourceComponent.createObject(viewHolder) as Item
        if (!cover.view)
            return
        cover.view.anchors.fill = viewHolder
        // The bar's button is the cover's one "Back": the view's own back
        // control does the same, so a screen reader passes over it.
        const ownBack = cover.findBack(cover.view)
        if (ownBack) {
            ownBack.Accessible.ignored = true
            ownBack.focusPolicy = Qt.NoFocus
        }
    }
    onClosed: {
        if (cover.view)
            cover.view.destroy()
        cover.view = null
        cover.dismiss()
    }
    background: Rectangle { color: Theme.background }

    // A screen reader meets the cover's own item by the cover's title too.
    Binding {
        target: cover.contentItem ? cover.contentItem.parent : null
        property: "Accessible.name"
        value: cover.title
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        Accessible.role: Accessible.Dialog
        Accessible.name: cover.title
        ToolBar {
            Layout.fillWidth: true
            Material.background: Theme.background
            Material.elevation: 0
            ToolButton {
                objectName: "coverBackButton"
                icon.source: "qrc:/Quieton/icons/chevron.left.svg"
                icon.color: Theme.link
                icon.width: Theme.iconSize * 0.75
                icon.height: Theme.iconSize * 0.75
                Accessible.name: qsTr("Back")
                Accessible.onPressAction: cover.close()
                onClicked: cover.close()
            }
        }
        Item {
            id: viewHolder
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
    Connections {
        target: cover.view
        ignoreUnknownSignals: true
        function onDismissRequested() { cover.close() }
    }

    function findBack(item) {
        if (!item)
            return null
        if (item.objectName === "backButton")
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = cover.findBack(item.children[i])
            if (found)
                return found
        }
        return null
    }
}
