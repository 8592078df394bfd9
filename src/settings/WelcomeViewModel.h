#pragma once

#include <QObject>
#include <QProperty>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

class UserDefaultsService;

// The onboarding: which of its pages is shown, and finishing it for good.
class WelcomeViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for its screen by the app's start-up")
    Q_PROPERTY(int selectedPage READ selectedPage WRITE setSelectedPage NOTIFY selectedPageChanged)
    Q_PROPERTY(bool isFinishLaunch READ isFinishLaunch WRITE setIsFinishLaunch NOTIFY isFinishLaunchChanged)
    Q_PROPERTY(int pageCount READ pageCount CONSTANT)

public:
    explicit WelcomeViewModel(UserDefaultsService &defaultsService, QObject *parent = nullptr);

    static int pageCount() { return 3; }

    int selectedPage() const { return m_selectedPage; }
    void setSelectedPage(int page) { m_selectedPage = std::clamp(page, 0, pageCount() - 1); }
    bool isFinishLaunch() const { return m_isFinishLaunch; }
    void setIsFinishLaunch(bool finished) { m_isFinishLaunch = finished; }

    // "Next": the following page; nothing on the last one.
    Q_INVOKABLE void next() { setSelectedPage(m_selectedPage + 1); }
    // "Get Started": onboarding is done and never shown again.
    Q_INVOKABLE void completeFirstLaunch();

signals:
    void selectedPageChanged();
    void isFinishLaunchChanged();

private:
    UserDefaultsService *m_defaultsService;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(WelcomeViewModel, int, m_selectedPage, 0, &WelcomeViewModel::selectedPageChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(WelcomeViewModel, bool, m_isFinishLaunch, false,
                                         &WelcomeViewModel::isFinishLaunchChanged)
};
