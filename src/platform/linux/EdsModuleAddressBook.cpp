#include "EdsModuleAddressBook.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QLibrary>
#include <QTextStream>

QStringList EdsModuleAddressBook::defaultModulePaths()
{
    const QString name = QStringLiteral("quieton-eds.so");
    return { QCoreApplication::applicationDirPath() + u'/' + name, QStringLiteral(QUIETON_MODULE_DIR "/") + name };
}

EdsModuleAddressBook::EdsModuleAddressBook(QDBusConnection sessionBus, QStringList modulePaths)
    : m_bus(std::move(sessionBus)), m_modulePaths(std::move(modulePaths))
{
}

bool EdsModuleAddressBook::isAvailable() const
{
    QDBusConnectionInterface *bus = m_bus.isConnected() ? m_bus.interface() : nullptr;
    const QString name = QString::fromLatin1(registryService);
    return bus && (bus->isServiceRegistered(name).value() || bus->activatableServiceNames().value().contains(name));
}

AddressBook *EdsModuleAddressBook::book()
{
    std::lock_guard lock(m_mutex);
    if (std::exchange(m_tried, true) || m_stopped || !isAvailable())
        return m_book.get();
    for (const QString &path : std::as_const(m_modulePaths)) {
        QLibrary module(path);
        using Make = AddressBook *(*)();
        if (const auto make = reinterpret_cast<Make>(module.resolve("quietonNewEdsAddressBook"))) {
            m_book.reset(make());
            return m_book.get();
        }
    }
    QTextStream(stdout) << "Evolution Data Server's address books cannot be read: no module at "
                        << m_modulePaths.join(QStringLiteral(", ")) << Qt::endl;
    return nullptr;
}

AddressBook::AccessAnswer EdsModuleAddressBook::requestAccess()
{
    AddressBook *eds = book();
    return eds ? eds->requestAccess() : AccessAnswer{ false, QString() };
}

QString EdsModuleAddressBook::enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver)
{
    AddressBook *eds = book();
    return eds ? eds->enumerateContacts(deliver) : QString();
}

void EdsModuleAddressBook::stop()
{
    std::lock_guard lock(m_mutex);
    m_stopped = true;
    if (m_book)
        m_book->stop();
}
