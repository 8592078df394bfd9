list(APPEND QUIETON_SOURCES
    settings/SettingViewModel.cpp settings/SettingViewModel.h
    settings/UserGuideForQuietonViewModel.cpp settings/UserGuideForQuietonViewModel.h
    settings/WelcomeViewModel.cpp settings/WelcomeViewModel.h
)
list(APPEND QUIETON_QML
    settings/PrefixEditor.qml
    settings/SettingAlert.qml
    settings/SettingConfirmAlert.qml
    settings/SettingCover.qml
    settings/SettingRow.qml
    settings/SettingToggle.qml
    settings/SettingView.qml
    settings/SettingsGroup.qml
    settings/SettingsSectionHeader.qml
    settings/UserGuideForQuietonView.qml
    settings/WelcomeView.qml
)
list(APPEND QUIETON_RESOURCES
    settings/images/onboarding-welcome.svg
    settings/images/onboarding-contacts.svg
    settings/images/onboarding-history.svg
)
