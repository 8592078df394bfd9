list(APPEND QUIETON_SOURCES
    core/dialer/DialerViewModel.cpp core/dialer/DialerViewModel.h
)
list(APPEND QUIETON_QML
    core/dialer/DialerView.qml
)
