list(APPEND QUIETON_QML
    lists/CallPrivacyDialog.qml
    lists/ContactsView.qml
    lists/HistoryView.qml
)
