import QtQuick
import QtQuick.Controls

// Onboarding. Its pages arrive with the settings feature.
Page {
    property bool showMainView: false
}
