#include "DBusTypes.h"

#include <QDBusMetaType>

QDBusArgument &operator<<(QDBusArgument &argument, const ObjectProperties &object)
{
    argument.beginStructure();
    argument << object.path << object.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, ObjectProperties &object)
{
    argument.beginStructure();
    argument >> object.path >> object.properties;
    argument.endStructure();
    return argument;
}

void registerTelephonyDBusTypes()
{
    static const bool registered = [] {
        qDBusRegisterMetaType<InterfaceProperties>();
        qDBusRegisterMetaType<ManagedObjects>();
        qDBusRegisterMetaType<ObjectProperties>();
        qDBusRegisterMetaType<ObjectPropertiesList>();
        return true;
    }();
    Q_UNUSED(registered);
}
