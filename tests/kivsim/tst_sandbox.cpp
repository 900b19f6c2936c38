// kivsim's pieces: the [sandbox] section of a device file, and the bwrap
// command that lays the phone out over the host.
#include "bwrapcommand.h"
#include "exitcodes.h"
#include "sandboxrunner.h"

#include "platformcommon/keyfile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

SandboxSettings read(const QByteArray &text, QStringList &warnings)
{
    const KeyFile file = KeyFile::parse(text, QStringLiteral("dev.ini"));
    warnings = file.warnings();
    return SandboxSettings::from(file, QStringLiteral("dev.ini"), warnings);
}

} // namespace

class TestSandbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byteSizes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("bytes"); // -1: refused

        QTest::newRow("blanks, lower-case unit") << " 64k " << Q_INT64_C(65536);
        // B and other hex letters are digits, not units.
        QTest::newRow("hex ending in a letter") << "0x1B" << Q_INT64_C(27);
        QTest::newRow("overflow by the unit") << "8589934592G" << Q_INT64_C(-1);
    }

    void byteSizes()
    {
        QFETCH(QString, text);
        QFETCH(qint64, bytes);
        QCOMPARE(parseByteSize(text).value_or(-1), bytes);
    }

    void badValuesKeepDefaultsAndNameTheirLine()
    {
        QStringList warnings;
        const SandboxSettings settings = read("[sandbox]\nphone_size = 32M\ncard_size = 64M\n"
                                              "phone_size = lots\nmtab = ../../etc/passwd\nphonesize = 1M\n"
                                              "data_path = /data//  \nwrite_path = relative/app\n",
                                              warnings);
        QCOMPARE(settings.phoneSize, 0); // the later value replaced the 32M, and was refused
        QCOMPARE(settings.cardSize, 64 << 20);
        QCOMPARE(settings.mountTable, QStringLiteral("mtab"));
        QCOMPARE(settings.dataPath, QStringLiteral("/data//  ")); // passed as written
        QCOMPARE(settings.writePath, QStringLiteral("relative/app"));
        QCOMPARE(folderOf(settings.writePath), QString());
        QStringList lines;
        for (const QString &warning : warnings)
            lines << warning.section(u':', 0, 2);
        // The parser's own warning about the repeated key comes first.
        QCOMPARE(lines, (QStringList{"dev.ini:4: duplicate key \"phone_size\" in [sandbox] replaces the value of line 2",
                                     "dev.ini:4: [sandbox] phone_size", "dev.ini:5: [sandbox] mtab",
                                     "dev.ini:6: [sandbox] phonesize", "dev.ini:8: [sandbox] write_path"}));
        // Cleaned as text; outside the device folder (the fuzz target's invariant) it falls back.
        QCOMPARE(read("[sandbox]\nmtab = tables/../odd.mtab \n", warnings).mountTable, QStringLiteral("odd.mtab"));
        QCOMPARE(read("[sandbox]\nmtab =", warnings).mountTable, QStringLiteral("mtab"));
        QCOMPARE(read("[sandbox]\nmtab = a/../:/etc/passwd", warnings).mountTable, QStringLiteral("mtab")); // a Qt resource path
    }

    // The command's status only once the start script said it starts it;
    // bwrap's own failure before that, whatever its status, is kivsim's.
    void startReported_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        const QStringList host = {"--ro-bind", "/", "/", "--dev", "/dev"};
        const QString start = QStringLiteral("printf started >&%1; exec %1>&-; ").arg(CommandStartedFd);
        QTest::newRow("command's status") << host + QStringList{"sh", "-c", start + "exit 3"} << 3;
        QTest::newRow("no start reported") << host + QStringList{"sh", "-c", "exit 3"} << int(ExitCode::SetupFailed);
        QTest::newRow("source path missing")
            << QStringList{"--ro-bind", "/kivsim-no-such-folder", "/x", "true"} << int(ExitCode::SetupFailed);
    }

    void startReported()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QCOMPARE(runSandbox(QStringLiteral("bwrap"), arguments, {}), status);
    }

    void revealedPaths()
    {
        QTemporaryDir host; // under /tmp, which the sandbox hides
        const QString build = host.filePath("build");
        QVERIFY(QDir().mkpath(build + "/journal"));
        BwrapCommand command(host.filePath("copy"), SandboxSettings());
        using A = BwrapCommand::Access;
        command.revealHostPath(build + "/", A::ReadOnly);
        QCOMPARE(command.revealHostPath(build + "/journal", A::ReadWrite), QString());
        QCOMPARE(command.revealHostPath(build, A::ReadWrite), QString());
        command.revealHostPath(QStringLiteral("/work/visible"), A::ReadOnly);
        // Links and the device folder: the smoke test's shares group.
        for (const QString &refused : {QStringLiteral("/run"), QStringLiteral("/mmc")})
            QVERIFY2(!command.revealHostPath(refused, A::ReadWrite).isEmpty(), qPrintable(refused));
        QCOMPARE(command.revealHostPath(host.path(), A::ReadWrite), QString());
        command.setWorkingDirectory(host.filePath("work"));
        const QStringList program = {"prog", "--device", "a b", "--"};
        const QStringList arguments = command.arguments(program);

        // Writable wins over read-only, whatever the order; a parent before its child.
        const qsizetype parent = arguments.indexOf(host.path()), child = arguments.indexOf(build + "/journal");
        QVERIFY(parent > 0 && arguments.at(parent - 2) == "--bind-fd" && child > parent);
        QVERIFY(arguments.indexOf(build) > parent && arguments.at(arguments.indexOf(build) - 2) == "--bind-fd");
        QVERIFY(!arguments.contains(QStringLiteral("/work/visible"))); // visible through the host anyway
        const qsizetype work = arguments.indexOf(host.filePath("work"));
        QCOMPARE(arguments.mid(work - 1, 3), (QStringList{"--ro-bind-try", host.filePath("work"), host.filePath("work")}));
        QVERIFY(arguments.indexOf("--remount-ro") > parent);
        QCOMPARE(arguments.mid(arguments.size() - program.size() - 1), QStringList{"kivsim"} + program);
    }
};

QTEST_GUILESS_MAIN(TestSandbox)
#include "tst_sandbox.moc"
