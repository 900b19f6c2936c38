#!/usr/bin/env python3
"""Whole runs under kivsim --host on this machine's platform, against a mocked UDisks2, a recording MPRIS
player and activatable application on private buses, and fixture desktop entries:   host_run.py KIVSIM TAMBRO"""
import json, os, pathlib, signal, subprocess, sys, tempfile  # noqa: E401

try:
    import dbus
    import dbusmock
except ImportError:
    print('SKIP: python3-dbusmock is not installed')
    sys.exit(77)

KIVSIM, TAMBRO = sys.argv[1:3]
PHONE, U, ROOT, NOBODY = '/kivlocal/download/tambro', 'org.freedesktop.UDisks2', '/org/freedesktop/UDisks2', 65534
failed = 0


def check(name, got, expected):
    global failed
    if got != expected:
        failed += 1
        print(f'FAIL {name}:\n  got      {got!r}\n  expected {expected!r}')


def kivsim(options, *command, env=None):
    return subprocess.run([KIVSIM, '--host', *options, '--', *command], env=env, text=True, timeout=60,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)


def started_by_root():
    """The command runs as the phone folder's owner, never as root; what it makes is the owner's."""
    with tempfile.TemporaryDirectory() as top:
        os.chmod(top, 0o755)
        phone = pathlib.Path(top, 'phone')
        phone.mkdir()
        os.chown(phone, NOBODY, NOBODY)
        run = kivsim(['--phone', str(phone)], 'sh', '-c', f'mkdir {PHONE}/made && id -u')
        made = phone / 'made'
        check("root: the folder owner's, inside and out", (run.stdout, made.exists() and made.stat().st_uid),
              (f'{NOBODY}\n', NOBODY))
        os.chown(phone, 0, 0)
        check("root: a folder of root's", kivsim(['--phone', str(phone)], 'true').returncode, 125)
        check('root: no phone folder given', kivsim([], 'true').returncode, 125)


def become_nobody():
    os.setgroups([])
    os.setgid(NOBODY)
    os.setuid(NOBODY)


ENTRIES = {  # desktop file: Exec arguments after the recorder, MimeType, more
    'org.example.Viewer': ('viewer-exec %F', 'image/png', 'DBusActivatable=true\n'),
    'texteditor': ('text %f', 'text/plain', ''),
    'browser': ('url %u', 'x-scheme-handler/http', ''),
    'player': ('removed-player %U', 'audio/mpeg', ''),
    'player2': ('player %U', 'audio/mpeg', ''),
}
MIMEAPPS = {  # in the config folder: the desktop's own list comes first
    'mimeapps.list': '[Default Applications]\ntext/plain=missing.desktop;texteditor.desktop;\n'
                     'image/png=texteditor.desktop;\n[Removed Associations]\naudio/mpeg=player.desktop;\n',
    'kivtest-mimeapps.list': '[Default Applications]\nimage/png=org.example.Viewer.desktop;\n',
}
FILES = {'Music/song.mp3': b'ID3', 'Pictures/photo.png': b'\x89PNG\r\n\x1a\n', 'Documents/notes.txt': b'notes\n',
         'Documents/page.url': b'[InternetShortcut]\nURL=http://example.org/page?a=1&b=2\n', 'Documents/sheet.ods': b'PK'}


def make_fixture(top):
    data, config = pathlib.Path(top, 'xdg/data'), pathlib.Path(top, 'xdg/config')
    (data / 'applications').mkdir(parents=True)
    (data / 'mime').symlink_to('/usr/share/mime')
    config.mkdir(parents=True)
    record = pathlib.Path(top, 'record')
    record.write_text(f'#!/bin/sh\nname=$1; shift; printf "%s\\n" "$@" > {top}/records/$name\n')
    record.chmod(0o755)
    pathlib.Path(top, 'records').mkdir()
    for name, (arguments, mime, more) in ENTRIES.items():
        (data / 'applications' / f'{name}.desktop').write_text(
            f'[Desktop Entry]\nType=Application\nName={name}\nExec={record} {arguments}\nMimeType={mime};\n{more}')
    for name, text in MIMEAPPS.items():
        (config / name).write_text(text)
    for name, content in FILES.items():
        pathlib.Path(top, 'phone', name).parent.mkdir(parents=True, exist_ok=True)
        pathlib.Path(top, 'phone', name).write_bytes(content)
    pathlib.Path(top, 'card').mkdir()
    runtime = pathlib.Path(top, 'runtime')
    runtime.mkdir(mode=0o700)
    return dict(os.environ, HOME=top, XDG_DATA_DIRS=str(data), XDG_DATA_HOME=f'{top}/xdg/home',
                XDG_CONFIG_HOME=str(config), XDG_CONFIG_DIRS=f'{top}/xdg/etc', XDG_CURRENT_DESKTOP='KivTest',
                XDG_RUNTIME_DIR=str(runtime))


def recorder(name, interface, path):
    process = dbusmock.DBusTestCase.spawn_server(name, path, interface, False, subprocess.DEVNULL)
    mock = dbus.Interface(dbusmock.DBusTestCase.get_dbus(False).get_object(name, path), dbusmock.MOCK_IFACE)
    return process, mock


def plain(value):
    if isinstance(value, (list, dbus.Array)):
        return [plain(v) for v in value]
    return {str(k): plain(v) for k, v in value.items()} if isinstance(value, dict) else str(value)


def calls(mock):
    return [[str(call[1]), *plain(list(call[2]))] for call in mock.GetCalls()]


def opening(top, env):
    player, player_mock = recorder('org.mpris.MediaPlayer2.kivtest', 'org.mpris.MediaPlayer2.Player',
                                   '/org/mpris/MediaPlayer2')
    player_mock.AddMethod('', 'OpenUri', 's', '', '')
    _, viewer = recorder('org.example.Viewer', 'org.freedesktop.Application', '/org/example/Viewer')
    viewer.AddMethod('', 'Open', 'asa{sv}', '', '')
    records = pathlib.Path(top, 'records')

    def open_file(name, waited_record=None):
        wait = f'i=0; while [ ! -s {records}/{waited_record} ] && [ $i -lt 50 ]; do sleep 0.1; i=$((i+1)); done'
        run = kivsim(['--phone', f'{top}/phone', '--share', top], 'sh', '-c',
                     '"$0" open "$1" >/dev/null; ' + (wait if waited_record else ''), TAMBRO, f'{PHONE}/{name}', env=env)
        return run.stderr

    def record(name):
        path = records / name
        return path.exists() and (path.read_text().splitlines(), path.stat().st_uid == os.getuid())

    open_file('Music/song.mp3')
    check('song: to the running MPRIS player', calls(player_mock), [['OpenUri', f'file://{PHONE}/Music/song.mp3']])
    open_file('Pictures/photo.png')
    check("picture: the desktop's own default, an activatable viewer", calls(viewer),
          [['Open', [f'file://{PHONE}/Pictures/photo.png'], {}]])
    open_file('Documents/notes.txt', 'text')
    check('text: past a default that is not installed, by its Exec line, as the user', record('text'),
          ([f'{PHONE}/Documents/notes.txt'], True))
    open_file('Documents/page.url', 'url')
    check("bookmark: its URL to the scheme's handler", record('url'), (['http://example.org/page?a=1&b=2'], True))
    player.send_signal(signal.SIGTERM)
    player.wait()
    open_file('Music/song.mp3', 'player')
    check('song, no player running: the default application, past a removed association', record('player'),
          ([f'{PHONE}/Music/song.mp3'], True))
    warnings = open_file('Documents/sheet.ods')
    check('no application for the type: refused with one warning', (len(warnings.splitlines()), 'sheet.ods' in warnings,
                                                                    sorted(os.listdir(records))),
          (1, True, ['player', 'text', 'url']))


def card(usage='filesystem', label='', ro=False, fs=(), size=2**30, media=True, number=0):
    block = {U + '.Block': {'IdUsage': usage, 'IdLabel': label, 'Size': dbus.UInt64(size), 'ReadOnly': dbus.Boolean(ro),
                            'Drive': dbus.ObjectPath(ROOT + '/drives/r'), 'DeviceNumber': dbus.UInt64(number)},
             **({U + '.Filesystem': {'MountPoints': dbus.Array([p.encode() + b'\0' for p in fs], 'ay')}} if fs else {}),
             **({U + '.Encrypted': {'CleartextDevice': dbus.ObjectPath('/')}} if usage == 'crypto' else {})}
    return {ROOT + '/drives/r': {U + '.Drive': {'MediaRemovable': True, 'MediaAvailable': media}}, ROOT + '/b/p1': block}


def cards(top, env):
    mock = dbus.Interface(dbusmock.DBusTestCase.get_dbus(True).get_object(U, ROOT), dbusmock.MOCK_IFACE)
    mounted = dict(fs=[f'{top}/card'], number=os.stat(f'{top}/card').st_dev)
    rows = [  # name, UDisks2's objects, kivsim's options, the card as `tambro storage` shows it
        ('labelled, mounted where UDisks2 says', card(label='CARD', **mounted), [], ('/mmc/mmca1', 'ready', 'CARD', False, False)),
        ('read-only', card(label='CARD', ro=True, **mounted), [], ('/mmc/mmca1', 'ready', 'CARD', True, False)),
        ('locked', card('crypto'), [], ('', 'locked', '', False, True)),
        ('unformatted', card(''), [], ('', 'unformatted', '', False, False)),
        ('invalid', card(label='BAD'), [], ('', 'invalid', 'BAD', False, False)),
        ('absent: an empty reader', card('', size=0, media=False), [], None),
        ('a folder given as the card', {}, ['--card', f'{top}/card'], ('/mmc/mmca1', 'ready', '', False, False)),
    ]
    for name, objects, options, expected in rows:
        mock.AddMethod(dbusmock.OBJECT_MANAGER_IFACE, 'GetManagedObjects', '', 'a{oa{sa{sv}}}', f'ret = {objects!r}')
        run = kivsim(['--phone', f'{top}/phone', *options], TAMBRO, 'storage', '--json', env=env)
        found = [(p['path'], p['status'], p['label'], p['writeProtected'], p['locked'])
                 for p in json.loads(run.stdout or '[]') if p['kind'] == 'card']
        check(f'card: {name}', found, [expected] if expected else [])


if os.geteuid() == 0:
    started_by_root()
    become_nobody()
with tempfile.TemporaryDirectory() as top:
    os.chmod(top, 0o755)
    env = make_fixture(top)
    dbusmock.DBusTestCase.start_system_bus()
    dbusmock.DBusTestCase.start_session_bus()
    env.update({k: os.environ[k] for k in ('DBUS_SYSTEM_BUS_ADDRESS', 'DBUS_SESSION_BUS_ADDRESS')})
    dbusmock.DBusTestCase.spawn_server(U, ROOT, dbusmock.OBJECT_MANAGER_IFACE, True, subprocess.DEVNULL)
    cards(top, env)
    opening(top, env)
    dbusmock.DBusTestCase.tearDownClass()
print('FAILED' if failed else 'passed')
sys.exit(1 if failed else 0)
