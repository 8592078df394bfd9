#!/usr/bin/python3
"""A small AT-command modem on loopback TCP, for oFono's phonesim driver.

Prints "Port <n>" once it listens on 127.0.0.1, then serves one connection at
a time: fixed answers to oFono's bring-up queries, ERROR to SIM file reads,
OK to the rest. "ATD<string>;" is printed as "ATD <string>" and starts an
outgoing call. Lines on standard input act as the far end: "alert", "answer",
"hangup" (NO CARRIER) and "ring <number>". Stops at the end of its input.
"""

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


def number_type(number):
    return 145 if number.startswith('+') else 129


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

    def quiet_for(self):
        return max(0.0, self.last_command + QUIET_SECONDS - time.monotonic())

    def received(self, data):
        self.last_command = time.monotonic()
        self.buffer += data
        while b'\r' in self.buffer:
            line, self.buffer = self.buffer.split(b'\r', 1)
            command = line.decode(errors='replace').strip()
            if command:
                self.command(command, command.upper())

    def command(self, command, upper):
        if upper in FIXED_ANSWERS:
            self.send(FIXED_ANSWERS[upper], 'OK')
        elif upper.startswith('ATD') and not command.endswith(';'):
            self.send('NO CARRIER')
        elif upper.startswith('ATD'):
            print('ATD ' + command[3:-1], flush=True)
            self.add_call(0, DIALING, command[3:-1].rstrip('Ii'))
            self.send('OK')
        elif upper in ('ATH', 'AT+CHUP', 'ATH0'):
            self.calls.clear()
            self.send('OK')
        elif upper == 'AT+CLCC':
            self.send(*[f'+CLCC: {i},{d},{s},0,0,"{n}",{number_type(n)}' for i, d, s, n in self.calls], 'OK')
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
        elif upper.startswith(('AT+CRSM', 'AT+CPBS', 'AT+CSIM')):
            self.send('ERROR')
        else:
            self.send('OK')

    def control(self, words):
        if words == ['alert']:
            for call in self.calls:
                if call[2] == DIALING:
                    call[2] = ALERTING
        elif words == ['answer']:
            for call in self.calls:
                if call[1] == 0:
                    call[2] = ACTIVE
        elif words == ['hangup'] and self.calls:
            self.calls.clear()
            self.unsolicited.append('NO CARRIER')
        elif len(words) == 2 and words[0] == 'ring':
            self.add_call(1, INCOMING, words[1])
            self.unsolicited += ['RING', f'+CLIP: "{words[1]}",{number_type(words[1])}']


def main():
    server = socket.socket()
    server.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    server.bind(('127.0.0.1', 0))
    server.listen(1)
    print(f'Port {server.getsockname()[1]}', flush=True)

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
                    modem.control(line.decode().split())
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
