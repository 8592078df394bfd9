list(APPEND QUIETON_QML
    settings/SettingView.qml
    settings/WelcomeView.qml
)
