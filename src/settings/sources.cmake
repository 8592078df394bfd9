list(APPEND QUIETON_SOURCES
    settings/SettingViewModel.cpp settings/SettingViewModel.h
)
list(APPEND QUIETON_QML
    settings/SettingView.qml
    settings/WelcomeView.qml
)
