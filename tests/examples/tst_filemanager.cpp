// The file manager as a person uses it, on the sample phone (offscreen): one
// run from the root through a folder, a selection, a rename, two files opened
// and a card taken out.
#include "main_window.h"
#include "test_phone.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro");

QStringList shownNames(const FolderModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names << model.index(row, 0).data().toString();
    return names;
}

int rowOf(const FolderModel &model, const QString &shownName)
{
    return int(shownNames(model).indexOf(shownName));
}

// Types into the name field of the dialog that the action opens, then
// accepts it; what the field held after the typing.
QString typeIntoNameDialog(QAction *action, const QString &keys)
{
    QString typed;
    QTimer::singleShot(0, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        auto *field = dialog ? dialog->findChild<QLineEdit *>(QStringLiteral("nameField")) : nullptr;
        if (!field)
            return;
        field->clear();
        QTest::keyClicks(field, keys);
        typed = field->text();
        dialog->accept();
    });
    action->trigger();
    return typed;
}

} // namespace

class TestFileManager : public QObject
{
    Q_OBJECT

    MainWindow m_window;

    void select(const QStringList &shownNames)
    {
        QItemSelectionModel *selection = m_window.listView()->selectionModel();
        selection->clear();
        for (const QString &name : shownNames) {
            const QModelIndex index = m_window.model()->index(rowOf(*m_window.model(), name), 0);
            selection->setCurrentIndex(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }

    QAction *action(const char *name) { return m_window.findChild<QAction *>(QLatin1String(name)); }

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        TAMBRO_Global::instance();
        TAMBRO_FixedFolder::initialize();
        QVERIFY(m_window.openFolder(TAMBRO_FixedFolder::m_sFMRootPath));
    }

    void aWholeSession()
    {
        // The root: fixed folders in their order, the storages beside them.
        QStringList root = shownNames(*m_window.model());
        QCOMPARE(root.first(), "Pictures");
        QVERIFY(root.contains("Memory Card") && root.contains("Work SIM"));
        QCOMPARE(m_window.location()->text(), "My Files");

        // Into a folder with Enter, then two files selected.
        m_window.listView()->setCurrentIndex(m_window.model()->index(rowOf(*m_window.model(), "Audio"), 0));
        QTest::keyClick(m_window.listView(), Qt::Key_Return);
        QCOMPARE(m_window.location()->text(), "My Files/Audio");
        select({"LOUD.MP3", "Morning Song.mp3"});
        QCOMPARE(m_window.windowTitle(), "2 files selected - Total 148 B");

        // Opening a song reaches the media player.
        select({"Morning Song.mp3"});
        action("open")->trigger();
        QVERIFY(TestPhone::journalCalls().contains("AM_ActionData::invoke"));

        // A forbidden character never reaches the name; the folder is renamed.
        QVERIFY(QDir(Root + "/audio").mkdir("Live"));
        m_window.openFolder(Root + "/audio");
        select({"Live"});
        QCOMPARE(typeIntoNameDialog(action("rename"), "Live*2026"), "Live2026");
        QVERIFY(QFileInfo(Root + "/audio/Live2026").isDir() && !QFileInfo::exists(Root + "/audio/Live"));
        // A fixed folder keeps its name: the notice comes, no dialog.
        m_window.openFolder(Root);
        select({"Audio"});
        QTimer::singleShot(0, [] { if (QWidget *box = QApplication::activeModalWidget()) box->close(); });
        action("rename")->trigger();
        QVERIFY(QFileInfo(Root + "/audio").isDir());

        // A contact card cannot be opened: the phone's notice says so.
        m_window.openFolder(Root + "/documents");
        select({"Anna Berg.vcf"});
        action("open")->trigger();
        QVERIFY(TestPhone::journalCalls().contains("ZPopup::exec"));

        // The card taken out: gone from the root after Refresh.
        m_window.openFolder(Root);
        QFile device(qEnvironmentVariable("KIVSIM_DEVICE"));
        QVERIFY(device.open(QIODevice::ReadOnly));
        TestPhone::setDevice(device.readAll().replace("status = 1\ninfo = 1", "status = 0\ninfo = 0"));
        action("refresh")->trigger();
        root = shownNames(*m_window.model());
        QVERIFY(!root.contains("Memory Card") && root.contains("Work SIM"));
    }
};

QTEST_MAIN(TestFileManager)
#include "tst_filemanager.moc"
