pragma Singleton
import QtQuick
import Quieton.Core

// The app's one look: colours for light and dark, spacing, and type sizes
// that follow the platform font. Every screen takes its colours and sizes
// from here; the window hands the colours to the Material style, so that
// Qt Quick Controls follow them too.
QtObject {
    id: theme

    // Dark when the desktop prefers dark (or QUIETON_COLOR_SCHEME says so).
    readonly property bool dark: Appearance.dark

    // The user's text size step, for the few sizes that go by steps.
    readonly property int sizeCategory: ContentSizeCategory.current

    // Colours.
    readonly property color background: theme.dark ? "#000000" : "#F2F2F7"      // behind grouped content
    readonly property color surface: theme.dark ? "#1C1C1E" : "#FFFFFF"         // rows, cards, sheets
    readonly property color raised: theme.dark ? "#2C2C2E" : "#E5E5EA"          // keys, fields
    readonly property color pressed: theme.dark ? "#48484A" : "#D1D1D6"         // a control held down
    readonly property color text: theme.dark ? "#FFFFFF" : "#1C1C1E"
    readonly property color secondaryText: theme.dark ? "#AEAEB2" : "#6C6C70"
    readonly property color tertiaryText: "#8E8E93"
    readonly property color separator: theme.dark ? "#38383A" : "#C7C7CC"
    readonly property color accent: theme.dark ? "#81C784" : "#2E7D32"         // the app's green
    readonly property color link: theme.dark ? "#0A84FF" : "#007AFF"            // tappable text
    readonly property color call: theme.dark ? "#30D158" : "#34C759"            // the call button
    readonly property color destructive: theme.dark ? "#FF453A" : "#FF3B30"
    readonly property color textOnAccent: "#FFFFFF"                             // text on accent, call, destructive
    readonly property color scrim: theme.dark ? "#99000000" : "#66000000"       // behind modal popups

    // Spacing, in device-independent pixels.
    readonly property int spacingTiny: 4
    readonly property int spacingSmall: 8
    readonly property int spacing: 12
    readonly property int spacingLarge: 16
    readonly property int spacingHuge: 24
    readonly property int radius: 10
    // The smallest side of anything a finger taps.
    readonly property int touchTarget: 44

    // Type sizes in points: the platform font's size and fixed ratios of it.
    readonly property real bodySize: ContentSizeCategory.pointSize
    readonly property real footnoteSize: theme.bodySize * 0.85
    readonly property real headlineSize: theme.bodySize * 1.15
    readonly property real titleSize: theme.bodySize * 1.45
    readonly property real largeTitleSize: theme.bodySize * 2.0
    // Symbols drawn next to text, in pixels.
    readonly property int iconSize: Math.round(theme.bodySize * 1.9)
}
