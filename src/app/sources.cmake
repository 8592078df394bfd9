list(APPEND QUIETON_SOURCES
    app/AppDelegate.h
    app/CallConfirmationForeign.h
    app/CrashManager.h
    app/MainViewModel.cpp app/MainViewModel.h
    app/QuietonApp.cpp app/QuietonApp.h
    app/Service.cpp app/Service.h
    app/SingleInstance.cpp app/SingleInstance.h
    app/WidgetLink.cpp app/WidgetLink.h
)
list(APPEND QUIETON_QML
    app/AppWindow.qml
    app/CallConfirmationDialog.qml
    app/MainView.qml
)
