list(APPEND QUIETON_SOURCES
    core/UserDefaultsService.cpp core/UserDefaultsService.h
)
list(APPEND QUIETON_QML
    core/DialErrorAlert.qml
)
