import QtQuick

// A popup made the first time it is asked for, a piece per frame, and kept
// after that: a screen with several alerts is made without them, and the
// tap that asks waits for none. `content` is an Item with the popup declared
// in it (so that the popup finds its window), the popup's `visible` bound to
// the same flag as `asked`. Made here, not by a Loader: a Loader gives what
// it makes a context of its own, where a screen's bound components refuse
// to be made.
Item {
    id: onDemand
    property bool asked: false
    property Component content
    property var incubator: null

    function make() {
        if (!onDemand.asked || onDemand.incubator)
            return
        const incubator = onDemand.content.incubateObject(onDemand, {}, Qt.Asynchronous)
        onDemand.incubator = incubator
        if (incubator.status === Component.Loading)
            incubator.onStatusChanged = (status) => {
                if (status === Component.Error)
                    console.warn("The popup could not be made:", onDemand.content.errorString())
            }
    }
    onAskedChanged: onDemand.make()
    Component.onCompleted: onDemand.make()
}
