list(APPEND QUIETON_SOURCES
    core/CallObserver.cpp core/CallObserver.h
    core/CallObserverDelegate.cpp core/CallObserverDelegate.h
    core/HistoryCallDataService.cpp core/HistoryCallDataService.h
    core/HistoryData.h
    core/UserDefaultsService.cpp core/UserDefaultsService.h
)
list(APPEND QUIETON_QML
    core/DialErrorAlert.qml
)
