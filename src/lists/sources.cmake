list(APPEND QUIETON_QML
    lists/CallPrivacyDialog.qml
    lists/ContactsView.qml
    lists/HistoryView.qml
)
list(APPEND QUIETON_SOURCES
    lists/AdsManager.h
    lists/FilteredHistoryModel.cpp lists/FilteredHistoryModel.h
    lists/HistorySearchIndex.cpp lists/HistorySearchIndex.h
    lists/HistoryViewModel.cpp lists/HistoryViewModel.h
)
