#!/usr/bin/env python3
"""tambro opens files on the host platform: in a Flatpak sandbox (its /.flatpak-info made by bwrap) through a mocked
desktop portal, a document by a descriptor and a bookmark by its URL; outside it not:   portal_open.py TAMBRO PLATFORM"""
import os, shutil, subprocess, sys, tempfile  # noqa: E401

try:
    import dbus
    import dbusmock
except ImportError:
    print('SKIP: python3-dbusmock is not installed')
    sys.exit(77)
if not shutil.which('bwrap'):
    print('SKIP: bwrap is not installed')
    sys.exit(77)

TAMBRO, PLATFORM = sys.argv[1:3]
P, PATH, I = 'org.freedesktop.portal.Desktop', '/org/freedesktop/portal/desktop', 'org.freedesktop.portal.OpenURI'
ROWS = [  # name, in the sandbox, file and its content (after the first's), the portal's calls with the URI or the descriptor's file
    ('document by a descriptor', True, 'doc #1.txt', '', ['OpenFile {top}/doc #1.txt']),
    ('bookmark by its URL', True, 'news.url', '[InternetShortcut]\nURL=https://example.org/a?b=c\n',
     ['OpenURI https://example.org/a?b=c']),
    ('bookmark of a file, by a descriptor', True, 'file.url', '[InternetShortcut]\nURL=file://{top}/doc%20%231.txt\n',
     ['OpenFile {top}/doc #1.txt']),
    ('outside the sandbox: no portal', False, 'doc #1.txt', '', []),
]
dbusmock.DBusTestCase.start_session_bus()
dbusmock.DBusTestCase.spawn_server(P, PATH, I, False, subprocess.DEVNULL)
mock, failed = dbus.Interface(dbusmock.DBusTestCase.get_dbus(False).get_object(P, PATH), dbusmock.MOCK_IFACE), 0
# The host's top folders as they are, /proc and /dev the sandbox's own.
root = [a for name in os.listdir('/') if name not in ('proc', 'dev') for a in
        (['--symlink', os.readlink('/' + name), '/' + name] if os.path.islink('/' + name) else ['--bind'] + ['/' + name] * 2)]
with tempfile.TemporaryDirectory() as top:
    log = top + '/portal.log'
    record = f'open({log!r}, "a").write(" ".join(%s) + chr(10)); ret = dbus.ObjectPath("/r")'
    mock.AddMethod(I, 'OpenURI', 'ssa{sv}', 'o', record % '["OpenURI", args[1]]')
    mock.AddMethod(I, 'OpenFile', 'sha{sv}', 'o', 'import os; ' + record % '["OpenFile", os.readlink("/proc/self/fd/%d" % args[1].take())]')
    open(top + '/flatpak-info', 'w').write('[Application]\nname=org.example.Tambro\n')
    env = {**os.environ, 'LD_LIBRARY_PATH': PLATFORM, 'QT_QPA_PLATFORM': 'offscreen',  # and no applications
           **{v: top + '/none' for v in ('XDG_DATA_HOME', 'XDG_DATA_DIRS', 'XDG_CONFIG_HOME', 'XDG_CONFIG_DIRS')}}
    for name, sandboxed, file, content, expected in ROWS:
        open(f'{top}/{file}', 'w').write(content.format(top=top))
        open(log, 'w').close()
        sandbox = ['--ro-bind', top + '/flatpak-info', '/.flatpak-info'] if sandboxed else []
        subprocess.run(['bwrap', '--dev', '/dev', '--proc', '/proc', *root, *sandbox, TAMBRO, 'open', f'{top}/{file}'],
                       env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60)
        calls = open(log).read().splitlines()
        if calls != [call.format(top=top) for call in expected]:
            failed += 1
            print(f'FAIL {name}: the portal was asked {calls}')
dbusmock.DBusTestCase.tearDownClass()
print(f'{len(ROWS) - failed} passed, {failed} failed')
sys.exit(1 if failed else 0)
