# Update check, feedback and about.

# Where the update check and the web pages go. Hosts may carry a port
# ("127.0.0.1:8080"), which is how a build is pointed at a local server.
set(QUIETON_BUNDLE_ID "app.quieton.Quieton" CACHE STRING "The app's bundle identifier, as the store knows it")
set(QUIETON_STORE_LOOKUP_SCHEME "https" CACHE STRING "Scheme of the store's lookup service (http only for a local test server)")
set(QUIETON_STORE_LOOKUP_HOST "store.quieton.app" CACHE STRING "Host[:port] of the store's lookup service")
set(QUIETON_STORE_API_HOST "api.store.quieton.app" CACHE STRING "Host[:port] of the store's developer API for test builds (asked over https)")
set(QUIETON_STORE_API_TOKEN "tbd" CACHE STRING "Bearer token for the developer API; the default is a placeholder, never commit a real one")
set(QUIETON_WEB_HOST "quieton.app" CACHE STRING "Host of the product's web site")
configure_file(${CMAKE_CURRENT_LIST_DIR}/InfoBuildConfig.h.in ${CMAKE_CURRENT_BINARY_DIR}/generated/InfoBuildConfig.h @ONLY)

# The app's information file, embedded as qrc:/Quieton/info/Info.plist.
configure_file(${CMAKE_CURRENT_LIST_DIR}/Info.plist.in ${CMAKE_CURRENT_BINARY_DIR}/generated/Info.plist @ONLY)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/generated/Info.plist PROPERTIES QT_RESOURCE_ALIAS info/Info.plist)

list(APPEND QUIETON_SOURCES
    info/CheckUpdate.cpp info/CheckUpdate.h
    info/LookupResult.cpp info/LookupResult.h
    info/SafariWebView.cpp info/SafariWebView.h
    info/SendFeedBackViewModel.cpp info/SendFeedBackViewModel.h
    info/UpdateAlertPresenter.cpp info/UpdateAlertPresenter.h
)
list(APPEND QUIETON_QML
    info/AboutView.qml
    info/AppUpdateAlert.qml
    info/PageLinkRow.qml
    info/SendFeedBackView.qml
    info/SheetBackButton.qml
)
list(APPEND QUIETON_RESOURCES
    ${CMAKE_CURRENT_BINARY_DIR}/generated/Info.plist
)
