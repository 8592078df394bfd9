#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QObject;

namespace bench {

// Runs the event loop for `ms` milliseconds, as an app left alone does.
void idleFor(int ms);

// Shows `screen` (a QML file of the app's lists, e.g. "ContactsView.qml")
// made with `vm` as its model in a 400x800 window, lets it idle for a
// second, and sets the model's searchText to each text of `session` in turn,
// `rounds` times. Returns each keystroke's processor time on this thread in
// ms: the search, the list named `list` laid out for it and the rows it let
// go of deleted. Needs a QGuiApplication.
QList<double> typeIntoScreen(QObject *vm, const QString &screen, const QString &list, const QStringList &session,
                             int rounds);

} // namespace bench
