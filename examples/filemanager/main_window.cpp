#include "main_window.h"

#include "details_dialog.h"
#include "file_actions.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QMessageBox>
#include <QStackedWidget>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr QSize PhoneScreen(240, 320);

QAction *namedAction(QWidget *owner, QMenu *menu, const QString &text, const char *name)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    owner->addAction(action);
    return action;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent), m_model(new FolderModel(this)), m_location(new QLabel), m_views(new QStackedWidget),
      m_list(new QTreeView), m_grid(new QListView)
{
    m_location->setObjectName(QStringLiteral("location"));
    m_location->setStyleSheet(QStringLiteral("background: #2b4c7e; color: white; font-weight: bold; padding: 3px"));
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setHeaderHidden(true);
    m_list->setUniformRowHeights(true); // rows are worked out only when seen
    m_list->setIconSize(QSize(16, 16));
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(FolderModel::NameColumn, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(FolderModel::SizeColumn, QHeaderView::ResizeToContents);
    m_grid->setModel(m_model);
    m_grid->setSelectionModel(m_list->selectionModel());
    m_grid->setViewMode(QListView::IconMode);
    m_grid->setIconSize(QSize(48, 48));
    m_grid->setGridSize(QSize(72, 72));
    m_grid->setResizeMode(QListView::Adjust);
    m_grid->setUniformItemSizes(true);
    m_grid->setWordWrap(true);
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_list), static_cast<QAbstractItemView *>(m_grid)}) {
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        connect(view, &QAbstractItemView::activated, this, &MainWindow::activate);
        m_views->addWidget(view);
    }
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MainWindow::updateTitle);

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_location);
    layout->addWidget(m_views);
    setCentralWidget(central);
    addMenus();
    resize(PhoneScreen);
}

void MainWindow::addMenus()
{
    QToolBar *bar = addToolBar(tr("Navigation"));
    bar->setMovable(false);
    QAction *backAction = bar->addAction(tr("Back"), this, &MainWindow::back);
    backAction->setObjectName(QStringLiteral("back"));
    QMenu *file = menuBar()->addMenu(tr("&File"));
    connect(namedAction(this, file, tr("Open"), "open"), &QAction::triggered, this,
            [this] { activate(m_list->currentIndex()); });
    connect(namedAction(this, file, tr("Details"), "details"), &QAction::triggered, this, &MainWindow::showDetails);
    connect(namedAction(this, file, tr("New folder"), "newFolder"), &QAction::triggered, this, &MainWindow::newFolder);
    connect(namedAction(this, file, tr("Rename"), "rename"), &QAction::triggered, this, &MainWindow::renameSelected);
    connect(namedAction(this, file, tr("Delete"), "delete"), &QAction::triggered, this, &MainWindow::deleteSelected);
    connect(namedAction(this, file, tr("Send"), "send"), &QAction::triggered, this, &MainWindow::sendSelected);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    QAction *grid = namedAction(this, view, tr("Big icons"), "grid");
    grid->setCheckable(true);
    connect(grid, &QAction::toggled, this, &MainWindow::showGrid);
    QMenu *filter = view->addMenu(tr("Show"));
    auto *filters = new QActionGroup(this);
    const std::pair<const char *, QString> choices[] = {
        {"allFiles", tr("All files")}, {"ringTones", tr("Ring tones")},
        {"pictures", tr("Pictures")}, {"sounds", tr("Sounds")}};
    for (const auto &[name, text] : choices) {
        QAction *choice = namedAction(this, filter, text, name);
        choice->setCheckable(true);
        choice->setChecked(QLatin1String(name) == QLatin1String("allFiles"));
        filters->addAction(choice);
    }
    connect(findChild<QAction *>(QStringLiteral("allFiles")), &QAction::triggered, this, [this] { setFilter({}); });
    connect(findChild<QAction *>(QStringLiteral("ringTones")), &QAction::triggered, this,
            [this] { setFilter(TAMBRO_File_Filter(TAMBRO_FILTER_RING_TONES, false, true)); });
    connect(findChild<QAction *>(QStringLiteral("pictures")), &QAction::triggered, this, [this] {
        setFilter(TAMBRO_File_Filter(QStringList{"*.jpg", "*.jpeg", "*.png", "*.gif", "*.bmp", "*.wbmp"}, false, true));
    });
    connect(findChild<QAction *>(QStringLiteral("sounds")), &QAction::triggered, this, [this] {
        setFilter(TAMBRO_File_Filter(QStringList{"*.mp3", "*.amr", "*.aac", "*.wav", "*.mid", "*.midi"}, false, true));
    });
    connect(namedAction(this, view, tr("Refresh"), "refresh"), &QAction::triggered, this, &MainWindow::refresh);
}

bool MainWindow::openFolder(const QString &folder)
{
    if (!m_model->setFolder(folder, m_filter ? &*m_filter : nullptr))
        return false;
    m_location->setText(m_model->rows().title());
    findChild<QAction *>(QStringLiteral("back"))->setEnabled(m_model->folder() != TAMBRO_FixedFolder::m_sFMRootPath);
    updateTitle();
    return true;
}

QStringList MainWindow::selectedPaths() const
{
    QStringList paths;
    QModelIndexList rows = m_list->selectionModel()->selectedRows(FolderModel::NameColumn);
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex &row : rows)
        paths << m_model->rows().path(row.row());
    return paths;
}

void MainWindow::updateTitle()
{
    double total = 0;
    unsigned files = 0;
    for (const QModelIndex &row : m_list->selectionModel()->selectedRows(FolderModel::NameColumn)) {
        if (!m_model->rows().isFolder(row.row())) {
            total += double(m_model->rows().size(row.row()));
            ++files;
        }
    }
    setWindowTitle(files >= 2 ? TAMBRO_Global::getMultiSelectTitle(total, files)
                              : TAMBRO_Global::getShortName(m_model->folder()));
}

void MainWindow::activate(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const QString path = m_model->rows().path(index.row());
    if (m_model->rows().isFolder(index.row()))
        openFolder(path);
    else
        openFile(this, path);
}

int MainWindow::currentRow() const
{
    const QModelIndex current = m_list->selectionModel()->currentIndex();
    return current.isValid() ? current.row() : -1;
}

void MainWindow::back()
{
    QString parentPath;
    QString parentName;
    TAMBRO_Global::getFolderParent(m_model->folder(), parentPath, parentName);
    openFolder(parentPath);
}

void MainWindow::refresh()
{
    // Cards may have come or gone: the next query rescans the partitions.
    TAMBRO_Global::initMemFlag = false;
    TAMBRO_Global::initMem(0);
    if (!openFolder(m_model->folder()))
        openFolder(TAMBRO_FixedFolder::m_sFMRootPath);
}

void MainWindow::showGrid(bool grid)
{
    m_model->setBigIcons(grid);
    m_views->setCurrentWidget(grid ? static_cast<QWidget *>(m_grid) : m_list);
}

void MainWindow::setFilter(std::optional<TAMBRO_File_Filter> filter)
{
    m_filter = std::move(filter);
    openFolder(m_model->folder());
}

void MainWindow::showDetails()
{
    const int row = currentRow();
    const QString path = row >= 0 ? m_model->rows().path(row) : m_model->folder();
    DetailsDialog(path, TAMBRO_Global::getShortName(path), this).exec();
}

void MainWindow::warn(const QString &text)
{
    QMessageBox::information(this, windowTitle(), text);
}

bool MainWindow::mayChange(const QString &path)
{
    // Preloaded content lives in the phone's own read-only folders.
    if (!TAMBRO_FixedFolder::isFixedFolder(path) && !TAMBRO_Global::isPartiName(path)
        && TAMBRO_Global::isPartiSubFolder(path) != -4)
        return true;
    warn(tr("\"%1\" belongs to the phone and keeps its name.").arg(TAMBRO_Global::getShortName(path)));
    return false;
}

void MainWindow::newFolder()
{
    const QString name = askName(this, tr("New folder"), QString());
    if (name.isEmpty())
        return;
    if (!QDir(m_model->folder()).mkdir(name))
        warn(tr("The folder \"%1\" cannot be made here.").arg(name));
    openFolder(m_model->folder());
}

void MainWindow::renameSelected()
{
    const int row = currentRow();
    if (row < 0 || !mayChange(m_model->rows().path(row)))
        return;
    const QString path = m_model->rows().path(row);
    const QString name = askName(this, tr("Rename"), QFileInfo(path).fileName());
    if (name.isEmpty() || name == QFileInfo(path).fileName())
        return;
    // In the row's own folder, which need not be the one shown; QDir::rename
    // never replaces what is there.
    if (!QFileInfo(path).dir().rename(QFileInfo(path).fileName(), name))
        warn(tr("\"%1\" cannot be renamed to \"%2\".").arg(QFileInfo(path).fileName(), name));
    openFolder(m_model->folder());
}

void MainWindow::deleteSelected()
{
    const QStringList paths = selectedPaths();
    for (const QString &path : paths) {
        if (!mayChange(path))
            return;
    }
    if (paths.isEmpty()
        || QMessageBox::question(this, tr("Delete"), tr("Delete %n item(s)?", nullptr, int(paths.size())))
            != QMessageBox::Yes)
        return;
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir() ? !QDir(path).removeRecursively() : !QFile::remove(path))
            warn(tr("\"%1\" cannot be deleted.").arg(TAMBRO_Global::getShortName(path)));
    }
    openFolder(m_model->folder());
}

void MainWindow::sendSelected()
{
    QStringList files;
    for (const QString &path : selectedPaths()) {
        if (!QFileInfo(path).isDir())
            files << path;
    }
    if (files.isEmpty())
        return;
    bool ok = false;
    const QString recipient = QInputDialog::getText(this, tr("Send"), tr("To:"), QLineEdit::Normal, QString(), &ok).trimmed();
    if (!ok)
        return;
    const QString problem = recipientProblem(recipient);
    if (!problem.isEmpty())
        warn(problem);
    else
        sendFiles(files, recipient);
}
