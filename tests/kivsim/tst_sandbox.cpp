// kivsim's pieces: the [sandbox] section of a device file, and the bwrap
// command that lays the phone out over the host.
#include "bwrapcommand.h"

#include "simplatform/keyfile.h"

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

// Index of the option followed by the given operands, or -1.
qsizetype indexOf(const QStringList &arguments, const QStringList &option)
{
    for (qsizetype i = 0; i + option.size() <= arguments.size(); ++i) {
        if (arguments.mid(i, option.size()) == option)
            return i;
    }
    return -1;
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
    }

    void mountTableStaysInsideTheDeviceFolder()
    {
        QStringList warnings;
        QCOMPARE(read("[sandbox]\nmtab = tables/../odd.mtab \n", warnings).mountTable, QStringLiteral("odd.mtab"));
        for (const char *outside : {"/proc/mounts", "a/../../x", ""})
            QCOMPARE(read(QByteArray("[sandbox]\nmtab = ") + outside, warnings).mountTable, QStringLiteral("mtab"));
    }

    void revealedPaths()
    {
        QTemporaryDir copy;
        BwrapCommand command(copy.path(), SandboxSettings());
        command.revealHostPath(QStringLiteral("/tmp/build/"), BwrapCommand::Access::ReadOnly);
        command.revealHostPath(QStringLiteral("/tmp/build/journal"), BwrapCommand::Access::ReadWrite);
        command.revealHostPath(QStringLiteral("/tmp/build"), BwrapCommand::Access::ReadWrite);
        command.revealHostPath(QStringLiteral("/work/visible"), BwrapCommand::Access::ReadOnly);
        QVERIFY(!command.revealHostPath(QStringLiteral("/run"), BwrapCommand::Access::ReadWrite).isEmpty());
        QVERIFY(!command.revealHostPath(QStringLiteral("/mmc"), BwrapCommand::Access::ReadWrite).isEmpty());
        command.setWorkingDirectory(QStringLiteral("/tmp/work"));
        const QStringList program = {"prog", "--device", "a b", "--"};
        const QStringList arguments = command.arguments(program);

        // Writable wins over read-only, whatever the order; a parent before its child.
        const qsizetype parent = indexOf(arguments, {"--bind-try", "/tmp/build", "/tmp/build"});
        QVERIFY(parent >= 0 && indexOf(arguments, {"--bind-try", "/tmp/build/journal", "/tmp/build/journal"}) > parent);
        QVERIFY(!arguments.contains(QStringLiteral("/work/visible"))); // visible through the host anyway
        QVERIFY(0 <= indexOf(arguments, {"--ro-bind-try", "/tmp/work", "/tmp/work"}));
        QVERIFY(0 <= indexOf(arguments, {"--chdir", "/tmp/work"}));
        QVERIFY(indexOf(arguments, {"--remount-ro", "/"}) > parent);
        QCOMPARE(arguments.mid(arguments.size() - program.size() - 1), QStringList{"kivsim"} + program);
    }
};

QTEST_GUILESS_MAIN(TestSandbox)
#include "tst_sandbox.moc"
