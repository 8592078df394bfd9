#pragma once

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QList>
#include <QMap>
#include <QVariantMap>

// The compound D-Bus types of the telephony services, for the proxies
// generated from the interface descriptions in this folder.

// a{sa{sv}}: the properties of each interface of an object.
using InterfaceProperties = QMap<QString, QVariantMap>;
// a{oa{sa{sv}}}: what an object manager holds.
using ManagedObjects = QMap<QDBusObjectPath, InterfaceProperties>;

// (oa{sv}): an oFono object with its properties.
struct ObjectProperties
{
    QDBusObjectPath path;
    QVariantMap properties;
};
using ObjectPropertiesList = QList<ObjectProperties>;

QDBusArgument &operator<<(QDBusArgument &argument, const ObjectProperties &object);
const QDBusArgument &operator>>(const QDBusArgument &argument, ObjectProperties &object);

Q_DECLARE_METATYPE(ObjectProperties)

// Registers the types above with Qt D-Bus (once, any number of calls).
void registerTelephonyDBusTypes();
