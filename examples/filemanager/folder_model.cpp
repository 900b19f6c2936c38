#include "folder_model.h"

#include <TAMBRO_File_Filter.h>
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

#include <dirent.h>
#include <sys/stat.h>

namespace {

struct Listed
{
    QString name;
    bool isFolder;
};

// The folder's entries by the listing's types; only links and entries of
// unknown type are asked about (a link to a folder is a folder).
std::optional<std::vector<Listed>> readFolder(const QString &folder)
{
    DIR *dir = opendir(QFile::encodeName(folder).constData());
    if (!dir)
        return std::nullopt;
    std::vector<Listed> entries;
    while (const dirent *entry = readdir(dir)) {
        if (entry->d_name[0] == '.' && (!entry->d_name[1] || (entry->d_name[1] == '.' && !entry->d_name[2])))
            continue;
        bool isFolder = entry->d_type == DT_DIR;
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) {
            struct stat status;
            isFolder = fstatat(dirfd(dir), entry->d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
        }
        entries.push_back({QFile::decodeName(entry->d_name), isFolder});
    }
    closedir(dir);
    return entries;
}

// A screenful and more: the least that is put in order at a time.
constexpr size_t OrderedAtOnce = 64;

// What a storage that cannot be used as usual says after its name.
QString storageState(const QString &mountFolder)
{
    for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti) {
        if (TAMBRO_Global::getPartiName(parti) != mountFolder)
            continue;
        if (TAMBRO_Global::isCardLocked(parti))
            return QObject::tr("locked");
        if (TAMBRO_Global::isUnformattedParti(parti))
            return QObject::tr("unformatted");
        if (TAMBRO_Global::isInvalidParti(parti))
            return QObject::tr("invalid");
        if (TAMBRO_Global::writeProtected(parti))
            return QObject::tr("write-protected");
    }
    return QString();
}

} // namespace

FolderModel::FolderModel(QObject *parent) : QAbstractItemModel(parent) {}

bool FolderModel::setFolder(const QString &folder, const TAMBRO_File_Filter *filter)
{
    const QString absolute = QDir::cleanPath(QDir(folder).absolutePath());
    std::vector<Row> rows;
    // Asked before reading: a user's folder may be renamed aside to free a name.
    QSet<QString> fixedPaths;
    if (const QList<FixedFolder> *fixed = TAMBRO_FixedFolder::getFixedFolderList(absolute)) {
        for (const FixedFolder &each : *fixed) {
            rows.push_back({each.absolutePath, QString(), true, false, {}});
            fixedPaths.insert(each.absolutePath);
        }
    }
    const std::optional<std::vector<Listed>> entries = readFolder(absolute);
    if (!entries)
        return false;
    if (absolute == TAMBRO_FixedFolder::m_sFMRootPath) {
        for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti) {
            if (TAMBRO_Global::isCards(parti))
                rows.push_back({TAMBRO_Global::getPartiName(parti), QString(), true, true, {}});
        }
    }
    const QString prefix = absolute.endsWith(u'/') ? absolute : absolute + u'/';
    Group groups[2];
    for (const bool folders : {true, false}) {
        Group &group = groups[folders ? 0 : 1];
        group.begin = group.ordered = rows.size();
        for (const Listed &entry : *entries) {
            const QString path = prefix + entry.name;
            if (entry.isFolder != folders || fixedPaths.contains(path) || (!folders && filter && !filter->match(path)))
                continue;
            rows.push_back({path, entry.name, entry.isFolder, false, {}});
        }
        group.end = rows.size();
    }
    beginResetModel();
    m_folder = absolute;
    m_rows = std::move(rows);
    std::copy(std::begin(groups), std::end(groups), m_groups);
    endResetModel();
    return true;
}

FolderModel::Row &FolderModel::rowAt(int row) const
{
    const size_t wanted = size_t(row);
    for (Group &group : m_groups) {
        if (wanted >= group.ordered && wanted < group.end)
            orderUpTo(group, wanted);
    }
    return m_rows[wanted];
}

// Twice the rows already in order, and at least a screenful more: the next
// smallest names are picked out (linear time) and only they are sorted, so
// that scrolling through the whole folder costs no more than one sort.
void FolderModel::orderUpTo(Group &group, size_t row) const
{
    const size_t next = std::min(group.end, std::max({row + 1, group.ordered + OrderedAtOnce,
                                                      2 * group.ordered - group.begin}));
    const auto byName = [](const Row &a, const Row &b) { return TAMBRO_Global::compareString(a.name, b.name) < 0; };
    const auto first = m_rows.begin() + qsizetype(group.ordered);
    const auto middle = m_rows.begin() + qsizetype(next);
    if (next < group.end)
        std::nth_element(first, middle, m_rows.begin() + qsizetype(group.end), byName);
    std::sort(first, middle, byName);
    group.ordered = next;
}

void FolderModel::setBigIcons(bool big)
{
    m_bigIcons = big;
    if (!m_rows.empty())
        emit dataChanged(index(0, NameColumn), index(rowCount() - 1, NameColumn), {Qt::DecorationRole});
}

qint64 FolderModel::fileSize(int row) const
{
    return shown(rowAt(row)).size;
}

const FolderModel::Shown &FolderModel::shown(Row &row) const
{
    if (!row.shown)
        row.shown = row.isFolder ? folderShown(row) : fileShown(row);
    return *row.shown;
}

FolderModel::Shown FolderModel::folderShown(const Row &row) const
{
    _TAMBRO_FOLDER_RES res{QStringLiteral("fm_folder_thb.gif"), QStringLiteral("fm_folder_small.gif"), QString(),
                           QString()};
    TAMBRO_Global::getFolderRes(row.path, res, false);
    Shown shown{res.displayName, QString(), TAMBRO_Global::getIcon(res.smallIcon), TAMBRO_Global::getIcon(res.bigIcon)};
    if (row.isStorage) {
        const QString state = storageState(row.path);
        if (!state.isEmpty())
            shown.name += QStringLiteral(" (%1)").arg(state);
    }
    return shown;
}

FolderModel::Shown FolderModel::fileShown(const Row &row) const
{
    QString name = TAMBRO_Global::getShortName(row.path);
    TAMBRO_FixedFolder::trPreloadFile(row.path, name, true);
    const qint64 size = QFileInfo(row.path).size();
    return {name, TAMBRO_Global::getDetailViewSizeStr(double(size)),
            TAMBRO_Global::getIcon(TAMBRO_Global::getFileIconByType(row.path, false)),
            TAMBRO_Global::getIcon(TAMBRO_Global::getFileIconByType(row.path, true)), size};
}

QModelIndex FolderModel::index(int row, int column, const QModelIndex &parent) const
{
    if (parent.isValid() || row < 0 || row >= rowCount() || column < 0 || column >= ColumnCount)
        return {};
    return createIndex(row, column);
}

QModelIndex FolderModel::parent(const QModelIndex &) const
{
    return {};
}

int FolderModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int FolderModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FolderModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    Row &row = rowAt(index.row());
    switch (role) {
    case PathRole:
        return row.path;
    case IsFolderRole:
        return row.isFolder;
    case SizeRole:
        return shown(row).size;
    case Qt::DisplayRole:
        return index.column() == NameColumn ? shown(row).name : shown(row).sizeText;
    case Qt::DecorationRole:
        if (index.column() != NameColumn)
            return {};
        return m_bigIcons ? shown(row).bigIcon : shown(row).smallIcon;
    case Qt::TextAlignmentRole:
        return index.column() == SizeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    return {};
}
