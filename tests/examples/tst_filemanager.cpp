// The file manager as a person uses it, on the sample phone: one session
// offscreen; and under Xvfb, pictures of the root, a folder as a list and as a
// grid and the details view, saved into $FILEMANAGER_PICTURES.
#include "details_dialog.h"
#include "file_actions.h"
#include "main_window.h"
#include "test_phone.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <functional>

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro");

QStringList shownNames(const FolderModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names << model.index(row, 0).data().toString();
    return names;
}

// Runs the action, and answers the modal window it opens.
void answerModal(QAction *action, const std::function<void(QWidget *)> &answer)
{
    QTimer::singleShot(0, [&] {
        if (QWidget *window = QApplication::activeModalWidget())
            answer(window);
    });
    action->trigger();
}

// Saves the widget's picture and returns the texts it shows; nothing when
// the picture is blank or cannot be written.
QStringList savePicture(QWidget *widget, const QString &name)
{
    QCoreApplication::processEvents();
    const QImage image = widget->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    const QString file = QDir(qEnvironmentVariable("FILEMANAGER_PICTURES", QDir::tempPath())).filePath(name + ".png");
    if (colours.size() <= 8 || !image.save(file))
        return {};
    QStringList texts{QStringLiteral("saved")};
    for (const QLabel *label : widget->findChildren<QLabel *>())
        texts << label->text();
    return texts;
}

} // namespace

class TestFileManager : public QObject
{
    Q_OBJECT

    MainWindow m_window;

    void select(const QStringList &names)
    {
        QItemSelectionModel *selection = m_window.listView()->selectionModel();
        selection->clear();
        for (const QString &name : names)
            selection->setCurrentIndex(indexOf(name), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    QModelIndex indexOf(const QString &name) { return m_window.model()->index(int(shownNames(*m_window.model()).indexOf(name)), 0); }

    QAction *action(const char *name) { return m_window.findChild<QAction *>(QLatin1String(name)); }

    // Whether the action on the selection was refused with the phone's notice;
    // whatever window it opens is closed unanswered.
    bool refusedWithNotice(const char *name)
    {
        bool noticed = false;
        answerModal(action(name), [&](QWidget *window) {
            auto *box = qobject_cast<QMessageBox *>(window);
            noticed = box && box->text().contains("keeps its name");
            window->close();
        });
        return noticed;
    }

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        QVERIFY(QDir(Root + "/audio").mkdir("Live"));
        TAMBRO_Global::instance();
        TAMBRO_FixedFolder::initialize();
        QVERIFY(m_window.openFolder(TAMBRO_FixedFolder::m_sFMRootPath));
    }

    // The phone reads its e-mail bit once a process: this comes first, and a
    // second run ($FILEMANAGER_EMAIL_BIT=0) tries the bit unset.
    void sharingFollowsTheEmailBit()
    {
        const QByteArray bit = qgetenv("FILEMANAGER_EMAIL_BIT").isEmpty() ? "1" : qgetenv("FILEMANAGER_EMAIL_BIT");
        QFile device(qEnvironmentVariable("KIVSIM_DEVICE"));
        QVERIFY(device.open(QIODevice::ReadOnly));
        TestPhone::setDevice(device.readAll().replace("205 = 1", "205 = " + bit));
        TestPhone::clearJournal();
        sendFiles({Root + "/audio/LOUD.MP3"}, "me@example.com");
        sendFiles({Root + "/audio/LOUD.MP3"}, "0612345678");
        const QString byMail = bit == "1" ? "Email_ShareFiles" : "BlueTooth_ShareFiles";
        QCOMPARE(TestPhone::journalCalls().filter("_ShareFiles"),
                 QStringList({"TAMBRO_UTIL_Interface::" + byMail, "TAMBRO_UTIL_Interface::BlueTooth_ShareFiles"}));
    }

    void aWholeSession()
    {
        if (QGuiApplication::platformName() != QLatin1String("offscreen"))
            QSKIP("message boxes would wait for a person");
        // The root: fixed folders in their order, the storages beside them.
        QStringList root = shownNames(*m_window.model());
        QCOMPARE(root.first(), "Pictures");
        QVERIFY(root.contains("Memory Card") && root.contains("Work SIM"));
        // The storages keep their names and stay.
        for (const char *storage : {"Memory Card", "Work SIM"}) {
            for (const char *change : {"rename", "delete"}) {
                select({storage});
                QVERIFY2(refusedWithNotice(change), change);
            }
        }
        QCOMPARE(shownNames(*m_window.model()), root);
        QCOMPARE(m_window.location()->text(), "My Files");

        // Into a folder with Enter, then two files selected.
        m_window.listView()->setCurrentIndex(indexOf("Audio"));
        QTest::keyClick(m_window.listView(), Qt::Key_Return);
        QCOMPARE(m_window.location()->text(), "My Files/Audio");
        QCOMPARE(shownNames(*m_window.model()).first(), "Live"); // folders first
        select({"Live", "LOUD.MP3"}); // a folder is no file: one file has no title of its own
        QCOMPARE(m_window.windowTitle(), "Audio");
        select({"Live", "LOUD.MP3", "Morning Song.mp3"});
        QCOMPARE(m_window.windowTitle(), "2 files selected - Total 148 B");
        // A filter narrows the files only.
        action("pictures")->trigger();
        QCOMPARE(shownNames(*m_window.model()), QStringList{"Live"});
        action("allFiles")->trigger();

        // Opening a song reaches the media player.
        select({"Morning Song.mp3"});
        action("open")->trigger();
        QVERIFY(TestPhone::journalCalls().contains("AM_ActionData::invoke"));

        // A forbidden character never reaches the name; the folder is renamed.
        select({"Live"});
        QString typed;
        answerModal(action("rename"), [&](QWidget *dialog) {
            auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("nameField"));
            field->clear();
            QTest::keyClicks(field, "Live*2026");
            typed = field->text();
            qobject_cast<QDialog *>(dialog)->accept();
        });
        QCOMPARE(typed, "Live2026");
        QVERIFY(QFileInfo(Root + "/audio/Live2026").isDir() && !QFileInfo::exists(Root + "/audio/Live"));
        // A fixed folder and preloaded content keep their names: the notice
        // comes, no dialog, and a user's folder of the same name is left alone.
        QVERIFY(QDir().mkpath(Root + "/picture/pic"));
        for (const auto &[folder, name] : {std::pair{Root, "Audio"}, {Root + "/picture", "Preloaded Pictures"}}) {
            m_window.openFolder(folder);
            select({name});
            QVERIFY2(refusedWithNotice("rename"), name);
        }
        QVERIFY(QFileInfo(Root + "/audio").isDir() && QFileInfo(Root + "/picture/pic").isDir());

        // Put in order as far as asked: any row first, the whole order the collation's.
        QStringList names;
        QVERIFY(QDir().mkpath(Root + "/others/many"));
        for (int i = 0; i < 300; ++i) {
            names << QStringLiteral("n%1 %2.txt").arg((i * 7919) % 1000).arg(i % 3 ? "a" : "B");
            QVERIFY(QFile(Root + "/others/many/" + names.last()).open(QIODevice::WriteOnly));
        }
        std::sort(names.begin(), names.end(), [](auto &a, auto &b) { return TAMBRO_Global::compareString(a, b) < 0; });
        for (const int first : {299, 150, 0}) {
            m_window.openFolder(Root + "/others/many");
            QCOMPARE(m_window.model()->index(first, 0).data().toString(), names.at(first));
            QCOMPARE(shownNames(*m_window.model()), names);
        }

        // A card that cannot be used as usual says the first reason of:
        // locked, unformatted or invalid, write-protected.
        m_window.openFolder(Root);
        QFile device(qEnvironmentVariable("KIVSIM_DEVICE"));
        QVERIFY(device.open(QIODevice::ReadOnly));
        const QByteArray sample = device.readAll();
        for (const auto &[flags, shown] : {std::pair{"0x03\nbyte2 = 0x02", "(locked)"}, {"0x01\nbyte2 = 0x02", "(unformatted)"},
                                           {"0x01\nbyte2 = 0x00", "(invalid)"}, {"0x01\nbyte2 = 0x04", "(write-protected)"}}) {
            TestPhone::setDevice(QByteArray(sample).replace("0x00\n# Formatted.\nbyte2 = 0x04", flags));
            action("refresh")->trigger();
            QVERIFY2(shownNames(*m_window.model()).contains("Memory Card " + QString(shown)), shown);
        }
        // The card taken out: gone from the root after Refresh.
        TestPhone::setDevice(QByteArray(sample).replace("status = 1\ninfo = 1", "status = 0\ninfo = 0"));
        action("refresh")->trigger();
        root = shownNames(*m_window.model());
        QVERIFY(!root.contains("Memory Card") && root.contains("Work SIM"));
    }

    void pictures()
    {
        if (QGuiApplication::platformName() == QLatin1String("offscreen"))
            QSKIP("pictures are taken on a real window system");
        m_window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_window));
        QCOMPARE(m_window.size(), QSize(240, 320));
        QVERIFY(m_window.openFolder(Root));
        QVERIFY(savePicture(&m_window, "root").contains("My Files"));
        QVERIFY(m_window.openFolder(Root + "/picture"));
        QVERIFY(savePicture(&m_window, "folder-list").contains("My Files/Pictures"));
        action("grid")->setChecked(true);
        QVERIFY(m_window.gridView()->isVisible() && !savePicture(&m_window, "folder-grid").isEmpty());

        DetailsDialog details(Root + "/audio", "Audio", &m_window);
        details.show();
        QVERIFY(QTest::qWaitForWindowExposed(&details));
        const QStringList shown = savePicture(&details, "details");
        QVERIFY2(shown.contains("Audio") && shown.filter(" free of ").size() == 1, qPrintable(shown.join('|')));
    }
};

QTEST_MAIN(TestFileManager)
#include "tst_filemanager.moc"
