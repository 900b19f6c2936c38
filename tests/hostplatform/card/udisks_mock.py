#!/usr/bin/env python3
"""The card at /mmc/mmca1 as the query finds it, one row per state:   udisks_mock.py TST_CARD_STATE"""
import os, pathlib, subprocess, sys, tempfile, time  # noqa: E401

try:
    import dbus
    import dbusmock
except ImportError:
    print('SKIP: python3-dbusmock is not installed')
    sys.exit(77)

U, ROOT, AT = 'org.freedesktop.UDisks2', '/org/freedesktop/UDisks2', '/mmc/mmca1'


def card(usage='filesystem', label='', size=2**30, ro=False, fs=(), removable=True, media=True, path='p1'):
    """A reader holding a card with one block (a whole disk's partition table at path 'disk'); fs: its mount points."""
    block = {U + '.Block': {'IdUsage': usage, 'IdLabel': label, 'Size': dbus.UInt64(size), 'ReadOnly': dbus.Boolean(ro),
                            'Drive': dbus.ObjectPath(ROOT + '/drives/r'), 'DeviceNumber': dbus.UInt64(os.makedev(179, 1))},
             **({U + '.Filesystem': {'MountPoints': dbus.Array([p.encode() + b'\0' for p in fs], 'ay')}} if fs else {}),
             **({U + '.Encrypted': {'CleartextDevice': dbus.ObjectPath('/')}} if usage == 'crypto' else {}),
             **({U + '.PartitionTable': {'Type': 'dos'}} if path == 'disk' else {})}
    return {ROOT + '/drives/r': {U + '.Drive': {'MediaRemovable': removable, 'MediaAvailable': media}}, f'{ROOT}/b/{path}': block}


def mount(dev, options='rw', fs_options='rw', at=AT):
    return f'30 22 {dev} / {at} {options} - vfat /dev/x {fs_options}\n'


# name, UDisks2's objects (or GetManagedObjects' "signature:code"; None: no bus), mounts (179:1 is read-only), state
ROWS = [
    ('labelled', card(label='CARD', fs=[AT]), '', 'inserted label=CARD'),
    ('read-only', card(label='CARD', ro=True, fs=[AT]), '', 'inserted write-protected label=CARD'),
    ('bound there read-only', card(label='CARD', fs=['/media/CARD']), mount('179:1', 'ro'), 'inserted write-protected label=CARD'),
    ('locked', card('crypto'), '', 'inserted locked'),
    ('unformatted', card('', ro=True), '', 'inserted write-protected unformatted'),
    ('invalid', card(label='BAD'), '', 'inserted invalid label=BAD'),
    ('absent: empty reader', card('', size=0, media=False), '', 'absent'),
    ('partitioned card', {**card('', path='disk'), **card('crypto')}, '', 'inserted locked'),
    ('fixed disk', card('', removable=False), '', 'absent'),
    ('a mount hides a locked card', card('crypto'), mount('0:50'), 'inserted'),
    ('no bus: sysfs ro, garbage after', None, mount('179:1') + f'1 2 179:2 / {AT} rw\n1 2 x:1 / {AT} rw - a b rw\n-\n',
     'inserted write-protected'),
    ('no bus: escaped, ro file system', None, mount('0:50', fs_options='rw,ro', at='/mmc/mmc\\1411'), 'inserted write-protected'),
    ('no bus: last mount hides', None, mount('179:1') + mount('179:2'), 'inserted'),
    ('empty reply', ':', mount('179:1'), 'inserted write-protected'),
    ('no reply in time', 'a{oa{sa{sv}}}:time.sleep(3); ret = {}', mount('179:1'), 'inserted write-protected'),
]


dbusmock.DBusTestCase.start_system_bus()
dbusmock.DBusTestCase.spawn_server(U, ROOT, dbusmock.OBJECT_MANAGER_IFACE, True, subprocess.DEVNULL)  # ends with the bus
mock, failed = dbus.Interface(dbusmock.DBusTestCase.get_dbus(True).get_object(U, ROOT), dbusmock.MOCK_IFACE), 0
with tempfile.TemporaryDirectory() as roots:
    os.makedirs(roots + '/proc/self')
    os.makedirs(roots + '/sys/dev/block/179:1')
    pathlib.Path(roots, 'sys/dev/block/179:1/ro').write_text('1\n')
    for name, objects, mountinfo, expected in ROWS:
        reply = objects if isinstance(objects, str) else f'a{{oa{{sa{{sv}}}}}}:ret = {objects!r}'
        mock.AddMethod(dbusmock.OBJECT_MANAGER_IFACE, 'GetManagedObjects', '', *reply.split(':', 1))
        pathlib.Path(roots, 'proc/self/mountinfo').write_text(mount('8:1', at='/') + mountinfo)
        env = dict(os.environ, **({'DBUS_SYSTEM_BUS_ADDRESS': f'unix:path={roots}/none'} if objects is None else {}))
        start = time.monotonic()
        got = subprocess.run([sys.argv[1], 'probe', AT + '/', roots + '/proc', roots + '/sys'], env=env,
                             stdout=subprocess.PIPE, text=True, timeout=10).stdout.strip()
        seconds = time.monotonic() - start
        if got != expected or seconds > 2:
            failed += 1
            print(f'FAIL {name}: "{got}" in {seconds:.1f} s, expected "{expected}"')
dbusmock.DBusTestCase.tearDownClass()
print(f'{len(ROWS) - failed} passed, {failed} failed')
sys.exit(1 if failed else 0)
