import QtQuick
import QtQuick.Controls

// The contacts tab. Its list arrives with the contacts feature.
Page { }
