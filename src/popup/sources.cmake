# The popup presenter.
list(APPEND QUIETON_SOURCES
    popup/PopupLayout.cpp popup/PopupLayout.h
)
list(APPEND QUIETON_QML
    popup/PopupView.qml
)
