// How a listing shows any folder: a fixed folder, preloaded content, a
// storage's mount folder or a folder inside one, or an ordinary folder; on a
// phone with the tests' folder structure, a card, and a MegaSIM listed in the
// mount table but not there.
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QDir>
#include <QTest>

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro/root");
const QString Card = QStringLiteral("/mmc/mmca1");
const QString MegaSim = QStringLiteral("/mmc/megasim1");
const QString Keep = QStringLiteral("keep");

} // namespace

class TestFolderResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QDir().mkpath(Card + "/DCIM/100KIV") && QDir().mkpath(Root + "/plain")
                && QDir().mkpath(Root + "/alpha/camera"));
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 3); // phone, MegaSIM, card
    }

    void folderRes_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("phoneIcon");
        QTest::addColumn<QStringList>("shown"); // big icon, small icon, name

        const QString big = QStringLiteral("fm_folder_thb.gif");
        const QString small = QStringLiteral("fm_folder_small.gif");
        const QString phone = QStringLiteral("fm_phone_mem_small.gif");
        const QStringList card{"fm_memory_card_thb.gif", "fm_memory_card_small.gif"};
        QTest::newRow("fixed folder") << Root + "/alpha" << false << QStringList{"alpha_thb.gif", "alpha_small.gif", "Alpha Folder"};
        QTest::newRow("phone's small picture for both sizes") << Root + "/alpha" << true << QStringList{phone, phone, "Alpha Folder"};
        QTest::newRow("any folder under the root is looked up") << Root + "/plain" << false << QStringList{big, small, "plain"};
        QTest::newRow("card's mount folder by its short name") << Card << false << card + QStringList{"Memory Card"};
        QTest::newRow("card's folder by its last component") << Card + "/DCIM/100KIV" << true << card + QStringList{"100KIV"};
        QTest::newRow("mount folder merely begins the path") << Card + "x" << false << card + QStringList{"mmca1x"};
        QTest::newRow("MegaSIM") << MegaSim << false << QStringList{"ctact_sim_thb.gif", "ctact_sim_small.gif", "MegaSIM"};
        QTest::newRow("phone memory keeps the caller's icons") << "/kivlocal/download/tambro/other" << false << QStringList{Keep, Keep, "other"};
        QTest::newRow("preloaded content by its tag form") << "/usr/data_resource/tones" << false << QStringList{"tones_thb.gif", small, "Tones"};
        QTest::newRow("elsewhere") << "/tmp/x" << false << QStringList{big, small, "x"};
    }

    void folderRes()
    {
        QFETCH(QString, path);
        QFETCH(bool, phoneIcon);
        QFETCH(QStringList, shown);
        _TAMBRO_FOLDER_RES res{Keep, Keep, Keep, Keep};
        TAMBRO_Global::getFolderRes(path, res, phoneIcon);
        QCOMPARE((QStringList{res.bigIcon, res.smallIcon, res.displayName}), shown);
        QCOMPARE(res.reserved, Keep);
    }

    void names_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("shortName");
        QTest::addColumn<QString>("displayPath"); // null: a null line
        QTest::addColumn<QString>("parent"); // path and name

        const QString rootParent = Root + "|Root Title";
        QTest::newRow("root") << Root << "Root Title" << "Root Title" << "/kivlocal/download/tambro|My Files";
        QTest::newRow("fixed folder two levels down")
            << Root + "/alpha/camera" << "Camera Roll" << "Root Title/Alpha Folder/Camera Roll" << Root + "/alpha|Alpha Folder";
        QTest::newRow("an empty level ends the line") << Root + "//alpha" << "alpha" << "Root Title" << rootParent;
        QTest::newRow("card's mount folder hangs under the root") << Card << "Memory Card" << "Root Title/Memory Card" << rootParent;
        QTest::newRow("card's folder: short name and the rest")
            << Card + "/DCIM/100KIV" << "100KIV" << "Root Title/Memory Card/DCIM/100KIV" << Card + "/DCIM|DCIM";
        QTest::newRow("preloaded folder, parent from the structure")
            << "/usr/data_resource/tones" << "Tones" << "Root Title/Tones" << rootParent;
        QTest::newRow("missing folder: the root as parent") << "/nowhere/x" << "x" << "" << rootParent;
    }

    void names()
    {
        QFETCH(QString, path);
        QFETCH(QString, shortName);
        QFETCH(QString, displayPath);
        QFETCH(QString, parent);
        QCOMPARE(TAMBRO_Global::getShortName(path), shortName);
        const QString line = TAMBRO_Global::getDisplayPathName(path);
        QCOMPARE(line, displayPath);
        QCOMPARE(line.isNull(), displayPath.isNull());
        QString parentPath;
        QString parentName;
        TAMBRO_Global::getFolderParent(path, parentPath, parentName);
        QCOMPARE(parentPath + u'|' + parentName, parent);
    }

    void partitions_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("mountFolder");
        QTest::addColumn<int>("holding");

        QTest::newRow("card's mount folder") << Card << 3 << 3;
        QTest::newRow("trailing slash is another path") << Card + "/" << 0 << 3;
        QTest::newRow("mount folder that is not there") << MegaSim << 0 << 2;
        QTest::newRow("mount folder anywhere in the path") << "/x" + MegaSim + "/y" << 0 << 2;
        QTest::newRow("preloaded content before any partition") << "/usr/data_resource" + Card << 0 << -4;
        QTest::newRow("the preload root is no preloaded content") << "/usr/data_resource" << 0 << 0;
    }

    void partitions()
    {
        QFETCH(QString, path);
        QFETCH(int, mountFolder);
        QFETCH(int, holding);
        QCOMPARE(TAMBRO_Global::isPartiName(path), mountFolder);
        QCOMPARE(TAMBRO_Global::isPartiSubFolder(path), holding);
    }

    void levelsAndEmptyPaths()
    {
        QVERIFY(TAMBRO_Global::getDisplayPathName(QString()).isNull());
        QCOMPARE(TAMBRO_Global::getShortName(QString()), QString());
        const std::pair<const char *, int> levels[] = {{"", 0}, {"name", 0}, {"/", 0}, {"a/b", 1}, {"/a/b", 2}, {"/a/b/", 2}};
        for (const auto &[path, level] : levels)
            QCOMPARE(TAMBRO_Global::getFolderLevel(QLatin1String(path)), level);
    }

    // Last, as it takes the card out of the mount table: a card inserted but
    // not mounted has no mount folder, and every path would begin with none.
    void unmountedCardHoldsNoFolder()
    {
        TestPhone::setDevice("[card]\nstatus = 1\n");
        TestPhone::setMountTable("/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n");
        TAMBRO_Global::initMemFlag = false;
        QCOMPARE(TAMBRO_Global::getPartiShortName(2) + TAMBRO_Global::getPartiName(2), "Memory Card");
        _TAMBRO_FOLDER_RES res;
        TAMBRO_Global::getFolderRes(Card, res, false);
        QCOMPARE(res.smallIcon + u' ' + res.displayName, "fm_folder_small.gif mmca1");
    }
};

QTEST_GUILESS_MAIN(TestFolderResources)
#include "tst_folder_resources.moc"
