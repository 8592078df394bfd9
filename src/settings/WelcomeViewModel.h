#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

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
    // Kept within the pages.
    void setSelectedPage(int page);
    bool isFinishLaunch() const { return m_isFinishLaunch; }
    void setIsFinishLaunch(bool finished);

    // "Next": the following page; nothing on the last one.
    Q_INVOKABLE void next();
    // "Get Started": onboarding is done and never shown again.
    Q_INVOKABLE void completeFirstLaunch();

signals:
    void selectedPageChanged();
    void isFinishLaunchChanged();

private:
    UserDefaultsService *m_defaultsService;
    int m_selectedPage = 0;
    bool m_isFinishLaunch = false;
};
