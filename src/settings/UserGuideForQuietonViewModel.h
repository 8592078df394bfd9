#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class UserDefaultsService;

// The user guide's bookkeeping: the guide counts as read once it has been
// open through its whole countdown.
class UserGuideForQuietonViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for its screen by the app's start-up")
    Q_PROPERTY(int secondsToRead READ secondsToRead CONSTANT)

public:
    explicit UserGuideForQuietonViewModel(UserDefaultsService &defaultsService, QObject *parent = nullptr);

    // Where the countdown starts each time the guide is opened.
    static int secondsToRead() { return 5; }

    // One tick of the guide's clock with `timeRemaining` seconds left:
    // counts down to 0, and from then on stores "isReadUserGuide" on every
    // tick. Returns the seconds left after the tick.
    Q_INVOKABLE int tick(int timeRemaining);

private:
    UserDefaultsService *m_defaultsService;
};
