// The bwrap command line: what is mounted where, what the host gives up for
// the phone, and which host paths are revealed.

#include "bwrapcommand.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Index of the option followed by the given operands, or -1.
qsizetype indexOf(const QStringList &arguments, const QStringList &option)
{
    for (qsizetype i = 0; i + option.size() <= arguments.size(); ++i) {
        if (arguments.mid(i, option.size()) == option)
            return i;
    }
    return -1;
}

bool contains(const QStringList &arguments, const QStringList &option)
{
    return indexOf(arguments, option) >= 0;
}

QString fillScript(const QStringList &arguments)
{
    return arguments.at(indexOf(arguments, {QStringLiteral("/bin/sh"), QStringLiteral("-c")}) + 2);
}

} // namespace

class TestBwrapCommand : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_copy;
    SandboxSettings m_settings;

private Q_SLOTS:
    void init()
    {
        m_settings = SandboxSettings();
        m_settings.phoneSize = 32 << 20;
        m_settings.cardSize = 0; // no card, although the card folder exists
        m_settings.megaSimSize = 8 << 20;
        for (const char *folder : {"phone", "card", "data_resource"})
            QVERIFY(QDir(m_copy.path()).mkpath(QLatin1String(folder)));
    }

    void storagesOnlyWithASize()
    {
        const QStringList arguments = BwrapCommand(m_copy.path(), m_settings).arguments({"true"});
        QVERIFY(contains(arguments, {"--size", "33554432", "--tmpfs", "/kivlocal/download/tambro"}));
        QVERIFY(contains(arguments, {"--size", "8388608", "--tmpfs", "/mmc/megasim1"}));
        QVERIFY(!arguments.contains(QStringLiteral("/mmc/mmca1")));
        // Filled only where the device has both the storage and its content.
        const QString script = fillScript(arguments);
        QVERIFY(script.contains(QLatin1String("/run/kivsim/device/phone/.")));
        QVERIFY(!script.contains(QLatin1String("/card/")));
        QVERIFY(!script.contains(QLatin1String("/megasim/")));
        QVERIFY(script.endsWith(QLatin1String("exec \"$@\"")));
    }

    void deviceCopyTakesTheSystemPlaces()
    {
        m_settings.mountTable = QStringLiteral("tables/odd.mtab");
        const QStringList arguments = BwrapCommand(m_copy.path(), m_settings).arguments({"true"});
        const QDir copy(m_copy.path());
        QVERIFY(contains(arguments, {"--bind", copy.filePath("tables/odd.mtab"), "/etc/mtab"}));
        QVERIFY(contains(arguments, {"--bind", m_copy.path(), "/run/kivsim/device"}));
        QVERIFY(contains(arguments,
                         {"--ro-bind", copy.filePath("data_resource"), "/usr/data_resource"}));
        // No tambro/ in this device: no folder structure file folder at all.
        QVERIFY(!arguments.contains(QStringLiteral("/usr/SYSqtapp/tambro")));
    }

    void hostMakesRoomForThePhone()
    {
        m_settings.writePath = QStringLiteral(" /home/appdata/ ");
        const QStringList arguments = BwrapCommand(m_copy.path(), m_settings).arguments({"true"});
        // The host's own versions of these must not be bound over the phone's.
        for (const char *path : {"/etc/mtab", "/usr/data_resource", "/tmp", "/proc", "/home"})
            QVERIFY2(!contains(arguments, {"--ro-bind-try", path, path}), path);
        QVERIFY(contains(arguments, {"--ro-bind-try", "/etc/hostname", "/etc/hostname"})
                || !QFileInfo::exists(QStringLiteral("/etc/hostname")));
        QVERIFY(contains(arguments, {"--tmpfs", "/home/appdata"}));
    }

    void revealedPaths()
    {
        BwrapCommand command(m_copy.path(), m_settings);
        command.revealHostPath(QStringLiteral("/tmp/build/"), BwrapCommand::Access::ReadOnly);
        command.revealHostPath(QStringLiteral("/tmp/build/journal"), BwrapCommand::Access::ReadWrite);
        command.revealHostPath(QStringLiteral("/tmp/build"), BwrapCommand::Access::ReadWrite);
        command.revealHostPath(QStringLiteral("/tmp/build"), BwrapCommand::Access::ReadOnly);
        command.revealHostPath(QStringLiteral("/work/visible"), BwrapCommand::Access::ReadOnly);
        command.revealHostPath(QStringLiteral("/run/user/1000"), BwrapCommand::Access::ReadOnly);
        const QStringList arguments = command.arguments({"true"});

        // Writable wins over read-only, whatever the order; a path is bound once.
        QCOMPARE(arguments.count(QStringLiteral("/tmp/build")), 2);
        const qsizetype parent = indexOf(arguments, {"--bind-try", "/tmp/build", "/tmp/build"});
        const qsizetype child =
            indexOf(arguments, {"--bind-try", "/tmp/build/journal", "/tmp/build/journal"});
        QVERIFY(parent >= 0 && child > parent);
        QVERIFY(contains(arguments, {"--ro-bind-try", "/run/user/1000", "/run/user/1000"}));
        // Already visible read-only through the host: nothing to bind.
        QVERIFY(!arguments.contains(QStringLiteral("/work/visible")));
        // Every mount is in place before the root becomes read-only.
        QVERIFY(indexOf(arguments, {"--remount-ro", "/"}) > child);
    }

    void commandFollowsUnchanged()
    {
        BwrapCommand command(m_copy.path(), m_settings);
        command.setWorkingDirectory(QStringLiteral("/tmp/work"));
        const QStringList program = {"prog", "--device", "a b", "--"};
        const QStringList arguments = command.arguments(program);
        QCOMPARE(arguments.mid(arguments.size() - program.size()), program);
        QCOMPARE(arguments.at(arguments.size() - program.size() - 1), QStringLiteral("kivsim"));
        QVERIFY(contains(arguments, {"--chdir", "/tmp/work"}));
        QVERIFY(contains(arguments, {"--ro-bind-try", "/tmp/work", "/tmp/work"}));
    }
};

QTEST_GUILESS_MAIN(TestBwrapCommand)
#include "tst_bwrapcommand.moc"
