list(APPEND QUIETON_QML
    lists/CallPrivacyDialog.qml
    lists/ContactsView.qml
    lists/HistoryView.qml
)
list(APPEND QUIETON_SOURCES
    lists/AdsManager.h
    lists/HistoryViewModel.cpp lists/HistoryViewModel.h
    lists/ContactsListModel.cpp lists/ContactsListModel.h
    lists/ContactsViewModel.cpp lists/ContactsViewModel.h
    lists/SearchFilter.cpp lists/SearchFilter.h
    lists/ContentSizeCategory.cpp lists/ContentSizeCategory.h
    lists/FetchedContact.cpp lists/FetchedContact.h
)
