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
// a(oa{sv}): oFono's objects, each with its properties.
using ObjectProperties = std::pair<QDBusObjectPath, QVariantMap>;
using ObjectPropertiesList = QList<ObjectProperties>;
