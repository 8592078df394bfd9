#!/usr/bin/python3
"""A simulated ModemManager with one voice modem, for demos and tests.

Owns org.freedesktop.ModemManager1 on a bus (the system bus unless --bus
gives an address) and offers what Quieton uses of ModemManager: the object
manager, one modem with Modem.Voice (CreateCall, ListCalls, DeleteCall,
HangupAll, CallAdded, CallDeleted), its SIM (EmergencyNumbers: 13373, which
is no real emergency number) and call objects (Start, Hangup, Accept;
State, StateReason, Direction, Number; StateChanged and PropertiesChanged).

A started call walks through dialing (1), ringing-out (2), active (4) and
terminated (7), one step every --step-ms, and is then deleted. With
--no-network, Start fails and the call ends at once.

Every request is printed as one line on standard output, e.g.
"CreateCall #31#0612345678" or "State /org/freedesktop/ModemManager1/Call/1 4",
and "Ready" once the name is owned. Runs with /usr/bin/python3 (python3-dbus,
python3-gi); stops on SIGTERM/SIGINT or when its bus goes away.
"""

import argparse
import os
import signal
import sys

import dbus
import dbus.bus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

SERVICE = 'org.freedesktop.ModemManager1'
ROOT = '/org/freedesktop/ModemManager1'
OBJECT_MANAGER = 'org.freedesktop.DBus.ObjectManager'
PROPERTIES = 'org.freedesktop.DBus.Properties'
MODEM = 'org.freedesktop.ModemManager1.Modem'
VOICE = 'org.freedesktop.ModemManager1.Modem.Voice'
CALL = 'org.freedesktop.ModemManager1.Call'
SIM = 'org.freedesktop.ModemManager1.Sim'
ERROR_INVALID_ARGS = 'org.freedesktop.ModemManager1.Error.Core.InvalidArgs'
ERROR_WRONG_STATE = 'org.freedesktop.ModemManager1.Error.Core.WrongState'
ERROR_NOT_FOUND = 'org.freedesktop.ModemManager1.Error.Core.NotFound'
ERROR_NO_NETWORK = 'org.freedesktop.ModemManager1.Error.MobileEquipment.NoNetwork'

DIALING, RINGING_OUT, ACTIVE, TERMINATED = 1, 2, 4, 7
DIRECTION_INCOMING, DIRECTION_OUTGOING = 1, 2
# What a modem takes as a number: digits, + * #, DTMF letters and pauses.
NUMBER_CHARACTERS = set('0123456789+*#ABCDabcdpPwW,')


def say(line):
    print(line, flush=True)


class PropertiesObject(dbus.service.Object):
    """An object with org.freedesktop.DBus.Properties over a dict per interface."""

    def __init__(self, bus, path, properties):
        super().__init__(bus, path)
        self.path = path
        self.properties = properties

    @dbus.service.method(PROPERTIES, in_signature='ss', out_signature='v')
    def Get(self, interface, name):
        try:
            return self.properties[interface][name]
        except KeyError as error:
            raise dbus.exceptions.DBusException(
                f'No property {interface}.{name}', name='org.freedesktop.DBus.Error.InvalidArgs') from error

    @dbus.service.method(PROPERTIES, in_signature='s', out_signature='a{sv}')
    def GetAll(self, interface):
        return dbus.Dictionary(self.properties.get(interface, {}), signature='sv')

    @dbus.service.method(PROPERTIES, in_signature='ssv', out_signature='')
    def Set(self, interface, name, value):
        raise dbus.exceptions.DBusException('Read-only', name='org.freedesktop.DBus.Error.PropertyReadOnly')

    @dbus.service.signal(PROPERTIES, signature='sa{sv}as')
    def PropertiesChanged(self, interface, changed, invalidated):
        pass

    def update(self, interface, changes):
        self.properties[interface].update(changes)
        self.PropertiesChanged(interface, dbus.Dictionary(changes, signature='sv'), dbus.Array([], signature='s'))


class Call(PropertiesObject):
    def __init__(self, bus, path, modem, number, direction):
        super().__init__(bus, path, {CALL: {
            'State': dbus.Int32(0),
            'StateReason': dbus.Int32(0),
            'Direction': dbus.Int32(direction),
            'Number': dbus.String(number),
            'Multiparty': dbus.Boolean(False),
            'AudioPort': dbus.String(''),
        }})
        self.modem = modem
        self.timer = None

    @property
    def state(self):
        return int(self.properties[CALL]['State'])

    def set_state(self, state, reason=0):
        old = self.state
        if old == state:
            return
        say(f'State {self.path} {state}')
        self.update(CALL, {'State': dbus.Int32(state), 'StateReason': dbus.Int32(reason)})
        self.StateChanged(old, state, reason)

    @dbus.service.signal(CALL, signature='iiu')
    def StateChanged(self, old, new, reason):
        pass

    @dbus.service.method(CALL, in_signature='', out_signature='')
    def Start(self):
        say(f'Start {self.path}')
        if self.state != 0:
            raise dbus.exceptions.DBusException('This call was already started', name=ERROR_WRONG_STATE)
        if not self.modem.network:
            self.set_state(TERMINATED, 1)
            self.schedule()
            raise dbus.exceptions.DBusException('Not registered in any network', name=ERROR_NO_NETWORK)
        self.set_state(DIALING)
        self.schedule()

    @dbus.service.method(CALL, in_signature='', out_signature='')
    def Accept(self):
        raise dbus.exceptions.DBusException('Only incoming calls can be accepted', name=ERROR_WRONG_STATE)

    @dbus.service.method(CALL, in_signature='', out_signature='')
    def Hangup(self):
        say(f'Hangup {self.path}')
        self.stop_timer()
        self.set_state(TERMINATED)
        self.schedule()

    def schedule(self):
        self.stop_timer()
        self.timer = GLib.timeout_add(self.modem.step_ms, self.step)

    def stop_timer(self):
        if self.timer is not None:
            GLib.source_remove(self.timer)
            self.timer = None

    def step(self):
        self.timer = None
        following = {DIALING: RINGING_OUT, RINGING_OUT: ACTIVE, ACTIVE: TERMINATED}
        if self.state in following:
            self.set_state(following[self.state])
            self.schedule()
        elif self.state == TERMINATED:
            self.modem.delete_call(self.path)
        return False

    def remove(self):
        self.stop_timer()
        self.remove_from_connection()


class Modem(PropertiesObject):
    def __init__(self, bus, path, step_ms, network=True):
        super().__init__(bus, path, {
            MODEM: {
                'Manufacturer': dbus.String('Quieton'),
                'Model': dbus.String('Simulated modem'),
                'State': dbus.Int32(8 if network else 7),  # registered / enabled
                'EquipmentIdentifier': dbus.String('000000000000000'),
                'Sim': dbus.ObjectPath(f'{ROOT}/SIM/0'),
            },
            VOICE: {
                'Calls': dbus.Array([], signature='o'),
                'EmergencyOnly': dbus.Boolean(False),
            },
        })
        self.bus = bus
        self.step_ms = step_ms
        self.network = network
        self.calls = {}
        self.counter = 0

    def _publish_calls(self):
        self.update(VOICE, {'Calls': dbus.Array(sorted(self.calls), signature='o')})

    @dbus.service.method(VOICE, in_signature='a{sv}', out_signature='o')
    def CreateCall(self, properties):
        number = str(properties.get('number', ''))
        say(f'CreateCall {number}')
        if not number:
            raise dbus.exceptions.DBusException('Cannot create call: no number given', name=ERROR_INVALID_ARGS)
        if not set(number) <= NUMBER_CHARACTERS:
            raise dbus.exceptions.DBusException(f'Cannot create call: invalid number {number!r}',
                                                name=ERROR_INVALID_ARGS)
        self.counter += 1
        path = f'{ROOT}/Call/{self.counter}'
        self.calls[path] = Call(self.bus, path, self, number, DIRECTION_OUTGOING)
        self._publish_calls()
        self.CallAdded(dbus.ObjectPath(path))
        return dbus.ObjectPath(path)

    @dbus.service.method(VOICE, in_signature='', out_signature='ao')
    def ListCalls(self):
        return dbus.Array(sorted(self.calls), signature='o')

    @dbus.service.method(VOICE, in_signature='o', out_signature='')
    def DeleteCall(self, path):
        say(f'DeleteCall {path}')
        if str(path) not in self.calls:
            raise dbus.exceptions.DBusException(f'No call {path}', name=ERROR_NOT_FOUND)
        self.delete_call(str(path))

    @dbus.service.method(VOICE, in_signature='', out_signature='')
    def HangupAll(self):
        say('HangupAll')
        for call in list(self.calls.values()):
            call.Hangup()

    @dbus.service.signal(VOICE, signature='o')
    def CallAdded(self, path):
        pass

    @dbus.service.signal(VOICE, signature='o')
    def CallDeleted(self, path):
        pass

    def delete_call(self, path):
        call = self.calls.pop(path, None)
        if call is None:
            return
        call.remove()
        say(f'Deleted {path}')
        self._publish_calls()
        self.CallDeleted(dbus.ObjectPath(path))


class Manager(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, ROOT)
        self.modems = {}

    @dbus.service.method(OBJECT_MANAGER, in_signature='', out_signature='a{oa{sa{sv}}}')
    def GetManagedObjects(self):
        return dbus.Dictionary(
            {dbus.ObjectPath(path): modem.properties for path, modem in self.modems.items()},
            signature='oa{sa{sv}}')

    @dbus.service.signal(OBJECT_MANAGER, signature='oa{sa{sv}}')
    def InterfacesAdded(self, path, interfaces):
        pass

    @dbus.service.signal(OBJECT_MANAGER, signature='oas')
    def InterfacesRemoved(self, path, interfaces):
        pass

    def add_modem(self, modem):
        self.modems[modem.path] = modem
        say(f'Modem {modem.path}')
        self.InterfacesAdded(dbus.ObjectPath(modem.path), modem.properties)
        return False


def main():
    parser = argparse.ArgumentParser(description='A simulated ModemManager with one voice modem.')
    parser.add_argument('--bus', help='address of the bus to serve on (default: the system bus)')
    parser.add_argument('--step-ms', type=int, default=1500, help='time between two states of a call')
    parser.add_argument('--modem-after-ms', type=int, default=0,
                        help='offer the modem only this long after start (default: at once)')
    parser.add_argument('--no-network', action='store_true',
                        help='calls are created but cannot start, as without a network')
    args = parser.parse_args()

    DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(args.bus) if args.bus else dbus.SystemBus()
    loop = GLib.MainLoop()

    manager = Manager(bus)
    sim = PropertiesObject(bus, f'{ROOT}/SIM/0', {SIM: {  # noqa: F841 (kept alive)
        'SimIdentifier': dbus.String('0000000000000000000'),
        'EmergencyNumbers': dbus.Array(['13373'], signature='s'),
    }})
    modem = Modem(bus, f'{ROOT}/Modem/0', args.step_ms, network=not args.no_network)
    if args.modem_after_ms > 0:
        GLib.timeout_add(args.modem_after_ms, manager.add_modem, modem)
    else:
        manager.add_modem(modem)

    disconnected = []

    def bus_gone(_connection):
        disconnected.append(True)
        loop.quit()

    bus.call_on_disconnection(bus_gone)
    for number in (signal.SIGTERM, signal.SIGINT):
        GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, number, loop.quit)

    # Owning the name last: whoever sees it can use everything at once.
    name = dbus.service.BusName(SERVICE, bus, do_not_queue=True)
    say('Ready')
    loop.run()
    if disconnected:
        # Nothing left to release: skip the name's farewell to a bus that is gone.
        sys.stdout.flush()
        os._exit(0)
    del name
    return 0


if __name__ == '__main__':
    sys.exit(main())
