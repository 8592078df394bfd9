import QtQuick
import QtQuick.Controls

// The history tab. Its list arrives with the history feature.
Page { }
