// How a listing shows any folder: a fixed folder, preloaded content, a
// storage's mount folder or a folder inside one, or an ordinary folder; and
// what the library tells about preloaded content and single folders. On a
// phone with the tests' folder structure, a card, and a MegaSIM listed in the
// mount table but not there; a test catalogue stands in for the user's language.
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QDir>
#include <QTest>
#include <QTranslator>

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro/root");
const QString Card = QStringLiteral("/mmc/mmca1");
const QString MegaSim = QStringLiteral("/mmc/megasim1");
const QString Untouched = QStringLiteral("untouched");

} // namespace

class TestFolderResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_catalogue.load(QStringLiteral(":/test-i18n/folders_test_de.qm")));
        QCoreApplication::installTranslator(&m_catalogue);
        QCOMPARE(TAMBRO_FixedFolder::m_sFMRootPath, Root);
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
        QTest::newRow("fixed folder") << Root + "/alpha" << false << QStringList{"alpha_thb.gif", "alpha_small.gif", "Alpha-Ordner"};
        QTest::newRow("phone's small picture for both sizes") << Root + "/alpha" << true << QStringList{phone, phone, "Alpha-Ordner"};
        QTest::newRow("any folder under the root is looked up") << Root + "/plain" << false << QStringList{big, small, "plain"};
        QTest::newRow("card's mount folder by its short name") << Card << false << card + QStringList{"Memory Card"};
        QTest::newRow("card's folder by its last component") << Card + "/DCIM/100KIV" << true << card + QStringList{"100KIV"};
        QTest::newRow("mount folder merely begins the path") << Card + "x" << false << card + QStringList{"mmca1x"};
        QTest::newRow("MegaSIM") << MegaSim << false << QStringList{"ctact_sim_thb.gif", "ctact_sim_small.gif", "MegaSIM"};
        QTest::newRow("phone memory keeps the caller's icons") << "/kivlocal/download/tambro/other" << false << QStringList{Untouched, Untouched, "other"};
        QTest::newRow("preloaded content by its tag form") << "/usr/data_resource/tones" << false << QStringList{"tones_thb.gif", small, "Töne"};
        QTest::newRow("elsewhere") << "/tmp/x" << false << QStringList{big, small, "x"};
    }

    void folderRes()
    {
        QFETCH(QString, path);
        QFETCH(bool, phoneIcon);
        QFETCH(QStringList, shown);
        _TAMBRO_FOLDER_RES res{Untouched, Untouched, Untouched, Untouched};
        TAMBRO_Global::getFolderRes(path, res, phoneIcon);
        QCOMPARE((QStringList{res.bigIcon, res.smallIcon, res.displayName}), shown);
        QCOMPARE(res.reserved, Untouched);
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
            << Root + "/alpha/camera" << "Camera Roll" << "Root Title/Alpha-Ordner/Camera Roll" << Root + "/alpha|Alpha-Ordner";
        QTest::newRow("an empty level ends the line") << Root + "//alpha" << "alpha" << "Root Title" << rootParent;
        QTest::newRow("card's mount folder hangs under the root") << Card << "Memory Card" << "Root Title/Memory Card" << rootParent;
        QTest::newRow("card's folder: short name and the rest")
            << Card + "/DCIM/100KIV" << "100KIV" << "Root Title/Memory Card/DCIM/100KIV" << Card + "/DCIM|DCIM";
        QTest::newRow("preloaded folder, parent from the structure")
            << "/usr/data_resource/tones" << "Töne" << "Root Title/Töne" << rootParent;
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

    void preloadPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("answers"); // p preload folder, r its root, t preload tag

        QTest::newRow("the root is no preload folder") << "/usr/data_resource" << "r";
        QTest::newRow("merely the root's characters first") << "/usr/data_resourcex" << "p";
        QTest::newRow("case counts") << "/usr/Data_resource/a" << "";
        QTest::newRow("root further in") << "/x/usr/data_resource/a" << "";
        QTest::newRow("tag form is no real path") << "//ZELK_PRELOAD:/a" << "t";
        QTest::newRow("tag in the middle") << "/in//ZELK_PRELOAD:/middle" << "t";
        QTest::newRow("tag one slash short") << "/ZELK_PRELOAD:/pic" << "";
    }

    void preloadPaths()
    {
        QFETCH(QString, path);
        QFETCH(QString, answers);
        QCOMPARE(TAMBRO_FixedFolder::isPreloadFolder(path), answers.contains(u'p'));
        QCOMPARE(TAMBRO_FixedFolder::isPreloadFolderRoot(path), answers.contains(u'r'));
        QCOMPARE(TAMBRO_FixedFolder::hasPreloadFolderTag(path), answers.contains(u't'));
    }

    void preloadParent_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("parentPath");
        QTest::addColumn<QString>("parentName"); // untouched: none found

        QTest::newRow("top level is the user's root") << "/usr/data_resource/tones" << Root << "Root Title";
        QTest::newRow("relative parent under the root, translated")
            << "/usr/data_resource/pics" << Root + "/alpha" << "Alpha-Ordner";
        QTest::newRow("tagged parent is preloaded too")
            << "/usr/data_resource/nested/deeper" << "/usr/data_resource/nested" << "Nested";
        QTest::newRow("parent without a name stays unnamed") << "/usr/data_resource/unnamed" << Root + "/a/b/c" << "";
        QTest::newRow("tag in the middle is replaced by position")
            << "/usr/data_resource/odd" << "/usr/data_resourceAD:/middle" << "";
        QTest::newRow("no parent_path empties the path only") << "/usr/data_resource/orphan" << "" << Untouched;
        QTest::newRow("a user's folder has none") << Root + "/alpha" << Untouched << Untouched;
    }

    void preloadParent()
    {
        QFETCH(QString, path);
        QFETCH(QString, parentPath);
        QFETCH(QString, parentName);
        QString actualPath = Untouched;
        QString actualName = Untouched;
        QCOMPARE(TAMBRO_FixedFolder::getPreloadFolderParent(path, actualPath, actualName), parentName != Untouched);
        QCOMPARE(actualPath, parentPath);
        QCOMPARE(actualName, parentName);
    }

    void preloadFileName_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("keepExtension");
        QTest::addColumn<QString>("name"); // untouched: not named

        const QString tones = QStringLiteral("/usr/data_resource/tones/");
        QTest::newRow("translated, with extension") << tones + "Beep.mid" << true << "Piep.mid";
        QTest::newRow("only the last dot ends the base") << tones + "Beep.v2.mid" << true << "Beep.v2.mid";
        QTest::newRow("no extension, nothing appended") << tones + "README" << true << "README";
        QTest::newRow("dot file is all extension") << tones + ".hidden" << true << ".hidden";
        QTest::newRow("dot file without extension") << tones + ".hidden" << false << "";
        QTest::newRow("Cyrillic name read as UTF-8") << tones + "Мелодия.mid" << true << "Мелодия.mid";
        QTest::newRow("translation beginning with the name is decoded again")
            << tones + "Ring.mid" << true << QStringLiteral(u"Ring\uFFFD.mid");
        QTest::newRow("outside the preloaded content") << Root + "/Beep.mid" << true << Untouched;
        QTest::newRow("slash only at the start") << "/Beep.mid" << true << Untouched;
    }

    void preloadFileName()
    {
        QFETCH(QString, path);
        QFETCH(bool, keepExtension);
        QFETCH(QString, name);
        QString actual = Untouched;
        QCOMPARE(TAMBRO_FixedFolder::trPreloadFile(path, actual, keepExtension), name != Untouched);
        QCOMPARE(actual, name);
    }

    void folder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("absolute");
        QTest::addColumn<QStringList>("iconsAndName"); // empty: the record is left alone

        const QString big = QStringLiteral("fm_folder_thb.gif");
        const QString small = QStringLiteral("fm_folder_small.gif");
        QTest::newRow("root is the top level") << Root << true << QStringList{big, small, "Root Title"};
        QTest::newRow("icons and translated name")
            << Root + "/alpha" << true << QStringList{"alpha_thb.gif", "alpha_small.gif", "Alpha-Ordner"};
        QTest::newRow("a group name as it stands")
            << "/alpha" << false << QStringList{"alpha_thb.gif", "alpha_small.gif", "Alpha-Ordner"};
        QTest::newRow("empty icon entry gives the generic icon")
            << Root + "/zeta" << true << QStringList{big, small, "Zeta Folder"};
        QTest::newRow("no name gives the last component") << Root + "/a/b/c" << true << QStringList{big, small, "c"};
        QTest::newRow("preloaded folder by its tag form")
            << "/usr/data_resource/tones" << false << QStringList{"tones_thb.gif", small, "Töne"};
        QTest::newRow("root found further in cuts the first characters")
            << "/x" + Root << true << QStringList{big, small, "ot"};
        QTest::newRow("preload root is outside the root") << "/usr/data_resource" << true << QStringList();
        QTest::newRow("a path outside the root") << "/elsewhere/x" << true << QStringList();
    }

    void folder()
    {
        QFETCH(QString, path);
        QFETCH(bool, absolute);
        QFETCH(QStringList, iconsAndName);
        FixedFolder record{Untouched, Untouched, Untouched, Untouched};
        QCOMPARE(TAMBRO_FixedFolder::getFolder(path, record, absolute), !iconsAndName.isEmpty());
        if (iconsAndName.isEmpty())
            iconsAndName = QStringList{Untouched, Untouched, Untouched};
        QCOMPARE((QStringList{record.bigIcon, record.smallIcon, record.displayName}), iconsAndName);
        QCOMPARE(record.absolutePath, Untouched);
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

private:
    QTranslator m_catalogue;
};

QTEST_GUILESS_MAIN(TestFolderResources)
#include "tst_folder_resources.moc"
