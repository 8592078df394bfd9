list(APPEND QUIETON_QML
    lists/ContactsView.qml
    lists/HistoryView.qml
)
