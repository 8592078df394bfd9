#!/usr/bin/python3
"""A small AT-command modem on loopback TCP, for oFono's phonesim driver.

Listens on 127.0.0.1 (--port, 0 chooses a free one) and prints "Port <n>"
once it listens. Serves one connection at a time: it answers the queries oFono
sends while it brings a modem up, "ERROR" to SIM file reads (its SIM holds
none) and "OK" to every other command.

Calls: "ATD<string>;" is printed as "ATD <string>" and starts an outgoing call
in state dialing; AT+CLCC lists the calls; ATH / AT+CHUP end them. Commands
read on standard input, one a line, move calls on as the other side would:
  alert          outgoing calls that are dialing start ringing at the far end
  answer         the far end answers (outgoing calls become active)
  hangup         the far end hangs up: every call ends with NO CARRIER
  ring <number>  an incoming call from <number> (RING and +CLIP)
Every command received is also printed as "< <command>" for diagnosis.
Standard library only; stops at the end of standard input or on SIGTERM.
"""

import argparse
import os
import selectors
import socket
import sys
import time

# oFono takes a result that comes while it waits for an answer as the answer:
# unsolicited results wait until no command came for this long.
QUIET_SECONDS = 0.1

# +CLCC states
ACTIVE, DIALING, ALERTING, INCOMING = 0, 2, 3, 4

FIXED_ANSWERS = {
    'AT+CGMI': 'Quieton',
    'AT+CGMM': 'Test modem',
    'AT+CGMR': '1.0',
    'AT+CGSN': '356938035643809',
    'AT+CIMI': '001010123456789',
    'AT+CPIN?': '+CPIN: READY',
    'AT+SIMSTATE?': '+SIMSTATE: 1',
    'AT+CSQ': '+CSQ: 20,99',
    'AT+CREG?': '+CREG: 2,1',
    'AT+CREG=?': '+CREG: (0-2)',
    'AT+CLIP?': '+CLIP: 1,1',
}


def say(line):
    print(line, flush=True)


class Modem:
    def __init__(self):
        self.connection = None
        self.buffer = b''
        self.calls = []  # [id, direction (0 out, 1 in), state, number]
        self.cfun = 0
        self.cops_format = 0
        self.unsolicited = []
        self.last_command = 0.0

    def add_call(self, direction, state, number):
        # Like a real modem, the lowest free call number.
        used = {call[0] for call in self.calls}
        self.calls.append([min(set(range(1, len(used) + 2)) - used), direction, state, number])

    def send(self, *lines):
        if self.connection:
            self.connection.sendall(b''.join(b'\r\n' + line.encode() + b'\r\n' for line in lines))

    def announce(self, *lines):
        self.unsolicited.extend(lines)

    def quiet_for(self):
        """Seconds until the line has been quiet long enough for unsolicited results."""
        return max(0.0, self.last_command + QUIET_SECONDS - time.monotonic())

    def received(self, data):
        self.last_command = time.monotonic()
        self.buffer += data
        while b'\r' in self.buffer:
            line, self.buffer = self.buffer.split(b'\r', 1)
            command = line.decode(errors='replace').strip()
            if command:
                say('< ' + command)
                self.command(command)

    def command(self, command):
        upper = command.upper()
        if upper in FIXED_ANSWERS:
            self.send(FIXED_ANSWERS[upper], 'OK')
        elif upper.startswith('ATD'):
            if not command.endswith(';'):
                self.send('NO CARRIER')
                return
            dialled = command[3:-1]
            say('ATD ' + dialled)
            self.add_call(0, DIALING, dialled.rstrip('Ii'))
            self.send('OK')
        elif upper == 'ATA':
            for call in self.calls:
                if call[2] == INCOMING:
                    call[2] = ACTIVE
            self.send('OK')
        elif upper in ('ATH', 'AT+CHUP', 'ATH0'):
            self.calls.clear()
            self.send('OK')
        elif upper == 'AT+CLCC':
            self.send(*[f'+CLCC: {i},{d},{s},0,0,"{n}",{145 if n.startswith("+") else 129}'
                        for i, d, s, n in self.calls], 'OK')
        elif upper == 'AT+CFUN?':
            self.send(f'+CFUN: {self.cfun}', 'OK')
        elif upper.startswith('AT+CFUN='):
            self.cfun = int(upper[8:].split(',')[0] or 0)
            self.send('OK')
        elif upper.startswith('AT+COPS=3,'):
            self.cops_format = int(upper[10:] or 0)
            self.send('OK')
        elif upper == 'AT+COPS?':
            operator = '"00101"' if self.cops_format == 2 else '"Quieton Net"'
            self.send(f'+COPS: 0,{self.cops_format},{operator}', 'OK')
        elif upper.startswith('AT+CRSM') or upper.startswith('AT+CPBS') or upper.startswith('AT+CSIM'):
            self.send('ERROR')
        else:
            self.send('OK')

    def control(self, line):
        words = line.split()
        if not words:
            return
        if words[0] == 'alert':
            for call in self.calls:
                if call[2] == DIALING:
                    call[2] = ALERTING
        elif words[0] == 'answer':
            for call in self.calls:
                if call[1] == 0:
                    call[2] = ACTIVE
        elif words[0] == 'hangup' and self.calls:
            self.calls.clear()
            self.announce('NO CARRIER')
        elif words[0] == 'ring' and len(words) > 1:
            self.add_call(1, INCOMING, words[1])
            self.announce('RING', f'+CLIP: "{words[1]}",{145 if words[1].startswith("+") else 129}')


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument('--port', type=int, default=0)
    port = parser.parse_args().port

    server = socket.socket()
    server.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    server.bind(('127.0.0.1', port))
    server.listen(1)
    say(f'Port {server.getsockname()[1]}')

    modem = Modem()
    control = b''
    selector = selectors.DefaultSelector()
    selector.register(server, selectors.EVENT_READ, 'server')
    selector.register(sys.stdin, selectors.EVENT_READ, 'control')
    while True:
        if modem.unsolicited and modem.quiet_for() == 0 and not selector.select(0):
            modem.send(*modem.unsolicited)
            modem.unsolicited.clear()
        for key, _ in selector.select(modem.quiet_for() if modem.unsolicited else None):
            if key.data == 'server':
                connection, _ = server.accept()
                if modem.connection:
                    connection.close()
                    continue
                modem.connection = connection
                selector.register(connection, selectors.EVENT_READ, 'modem')
            elif key.data == 'control':
                data = os.read(sys.stdin.fileno(), 4096)
                if not data:
                    return
                control += data
                while b'\n' in control:
                    line, control = control.split(b'\n', 1)
                    modem.control(line.decode())
            else:
                try:
                    data = modem.connection.recv(4096)
                except ConnectionError:
                    data = b''
                if not data:
                    selector.unregister(modem.connection)
                    modem.connection.close()
                    modem.connection = None
                    modem.calls.clear()
                    continue
                modem.received(data)


if __name__ == '__main__':
    main()
