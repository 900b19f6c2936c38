// The feature bits on this machine: the first config folder that sets a bit
// decides, a value other than 0 or 1 is passed over, then the defaults.
#include "feature_table.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestFeatureTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void featureBit_data()
    {
        QTest::addColumn<QByteArray>("user"); // the user's file, "" for none
        QTest::addColumn<QByteArray>("system");
        QTest::addColumn<int>("bit");
        QTest::addColumn<int>("expected"); // -1: unknown
        QTest::newRow("default: e-mail off, which this machine does not serve") << QByteArray() << QByteArray() << 205 << 0;
        QTest::newRow("default: native packages off") << QByteArray() << QByteArray() << 162 << 0;
        QTest::newRow("unknown bit") << QByteArray() << QByteArray() << 7 << -1;
        QTest::newRow("the user's before the system's") << QByteArray("[flex]\n205 = 0\n") << QByteArray("[flex]\n205 = 1\n") << 205 << 0;
        QTest::newRow("the system's before the default") << QByteArray("[other]\n205 = 0\n") << QByteArray("[flex]\n205 = 1\n") << 205 << 1;
        QTest::newRow("an odd value passed over") << QByteArray("[flex]\n162 = yes\n") << QByteArray("[flex]\n162 = 1\n") << 162 << 1;
        QTest::newRow("a bit with no default set") << QByteArray("[flex]\n7 = 1\n") << QByteArray() << 7 << 1;
    }

    void featureBit()
    {
        QFETCH(QByteArray, user);
        QFETCH(QByteArray, system);
        QFETCH(int, bit);
        QFETCH(int, expected);
        QTemporaryDir root;
        const QStringList folders{root.filePath("user"), root.filePath("system")};
        for (int i = 0; i < 2; ++i) {
            const QByteArray text = i ? system : user;
            QFile file(QDir(folders[i]).filePath(KivHost::FeatureFileName));
            QVERIFY(text.isEmpty() || (QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly)
                                       && file.write(text) == text.size()));
        }
        const std::optional<bool> value = KivHost::featureBit(quint16(bit), folders);
        QCOMPARE(value ? int(*value) : -1, expected);
    }
};

QTEST_GUILESS_MAIN(TestFeatureTable)
#include "tst_feature_table.moc"
