#include "TAMBRO_ListView.h"

#include <TAMBRO_File_Filter.h>
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <optional>
#include <vector>

#include <dirent.h>
#include <sys/stat.h>

namespace {

// Worked out when a row is first asked for.
struct Details
{
    QString shownName;
    QString bigIcon;
    QString smallIcon;
    qint64 size = -1;
    QString sizeText;
    qint64 modified = 0; // seconds since the epoch
};

// What few rows have, and what is worked out later: apart, so that the rows
// that are sorted stay small.
struct Extra
{
    QByteArray bytes; // when the name is not UTF-8
    QString path; // fixed folders and storages; the others' follows from the name
    std::optional<Details> details;
};

struct Row
{
    QString name;
    TAMBRO_ListView::Kind kind = TAMBRO_ListView::File;
    std::unique_ptr<Extra> extra;
};

// Rows [begin, end) of one kind, in order up to ordered.
struct Group
{
    size_t begin = 0;
    size_t end = 0;
    size_t ordered = 0;
};

// A screenful and more: the least that is put in order at a time.
constexpr size_t OrderedAtOnce = 64;

bool isDotOrDotDot(const char *name)
{
    return name[0] == '.' && (!name[1] || (name[1] == '.' && !name[2]));
}

// The listing's types are taken as they are; only links and entries of
// unknown type are asked about (a link to a folder is a folder).
bool isFolderEntry(DIR *dir, const dirent *entry)
{
    if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
        return entry->d_type == DT_DIR;
    struct stat status;
    return fstatat(dirfd(dir), entry->d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

// A file manager never hides a file: a name that is not UTF-8 keeps its bytes.
Row entryRow(const char *name, bool isFolder)
{
    Row row{QFile::decodeName(name), isFolder ? TAMBRO_ListView::Folder : TAMBRO_ListView::File, {}};
    if (row.name.contains(QChar::ReplacementCharacter) && row.name.toUtf8() != name)
        row.extra.reset(new Extra{name, {}, {}});
    return row;
}

std::unique_ptr<Extra> placedAt(const QString &path)
{
    return std::unique_ptr<Extra>(new Extra{{}, path, {}});
}

// The folder's fixed subfolders; the names of those that lie in the folder
// itself, which its own listing then leaves out.
QSet<QString> addFixedFolders(const QString &folder, std::vector<Row> &rows)
{
    QSet<QString> names;
    if (const QList<FixedFolder> *fixed = TAMBRO_FixedFolder::getFixedFolderList(folder)) {
        for (const FixedFolder &each : *fixed) {
            const qsizetype slash = each.absolutePath.lastIndexOf(u'/');
            rows.push_back({each.absolutePath.mid(slash + 1), TAMBRO_ListView::Folder, placedAt(each.absolutePath)});
            if (each.absolutePath.left(slash) == folder)
                names.insert(rows.back().name);
        }
    }
    return names;
}

// The card and the MegaSIM, which the phone shows under the root.
void addStorages(std::vector<Row> &rows)
{
    for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti) {
        if (TAMBRO_Global::isCards(parti)) {
            const QString mountFolder = TAMBRO_Global::getPartiName(parti);
            rows.push_back({mountFolder, TAMBRO_ListView::Storage, placedAt(mountFolder)});
        }
    }
}

bool byName(const Row &a, const Row &b)
{
    const int order = TAMBRO_Global::compareString(a.name, b.name);
    // Names the collation finds equal keep one order whatever the listing's.
    return order != 0 ? order < 0 : a.name < b.name;
}

// The library's icons for a folder outside every storage, which the phone
// memory's own folders show too.
const _TAMBRO_FOLDER_RES &plainFolder()
{
    static const _TAMBRO_FOLDER_RES res = [] {
        _TAMBRO_FOLDER_RES outside;
        TAMBRO_Global::getFolderRes(QString(), outside, false);
        return outside;
    }();
    return res;
}

int partitionMountedAt(const QString &mountFolder)
{
    for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti) {
        if (TAMBRO_Global::getPartiName(parti) == mountFolder)
            return parti;
    }
    return 0;
}

Details folderDetails(const QString &path, TAMBRO_ListView::Kind kind)
{
    _TAMBRO_FOLDER_RES res = plainFolder();
    TAMBRO_Global::getFolderRes(path, res, false);
    Details details{res.displayName, res.bigIcon, res.smallIcon, -1, QString(), 0};
    if (kind == TAMBRO_ListView::Storage) {
        const QString state = TAMBRO_ListView::storageStateText(TAMBRO_ListView::storageState(partitionMountedAt(path)));
        if (!state.isEmpty())
            details.shownName += QStringLiteral(" (%1)").arg(state);
    }
    return details;
}

// By the name's bytes, which the path may not hold. What a link leads to;
// a dangling link is an empty file.
Details fileDetails(const QString &path, const QByteArray &onDisk)
{
    Details details{TAMBRO_Global::getShortName(path), TAMBRO_Global::getFileIconByType(path, true),
                    TAMBRO_Global::getFileIconByType(path, false), 0, QString(), 0};
    TAMBRO_FixedFolder::trPreloadFile(path, details.shownName, true);
    struct stat status;
    if (::stat(onDisk.constData(), &status) == 0) {
        details.size = status.st_size;
        details.modified = status.st_mtim.tv_sec;
    }
    details.sizeText = TAMBRO_Global::getDetailViewSizeStr(double(details.size));
    return details;
}

} // namespace

struct TAMBRO_ListView::Private
{
    QString folder;
    QString prefix; // the folder with a trailing slash
    std::vector<Row> rows;
    Group groups[2]; // the folders, the files

    bool read(const QString &absolute, const TAMBRO_File_Filter *filter);
    // The row, after the rows of its group up to it are in order; null
    // outside the rows.
    Row *at(int row);
    void orderUpTo(Group &group, size_t row);
    QString pathOf(const Row &row) const
    {
        return row.extra && !row.extra->path.isNull() ? row.extra->path : prefix + row.name;
    }
    const Details *details(int row);
    // One of the row's details; absent outside the rows.
    template<typename Value>
    Value detail(int row, Value Details::*field, Value absent = Value())
    {
        const Details *worked = details(row);
        return worked ? worked->*field : absent;
    }
};

bool TAMBRO_ListView::Private::read(const QString &absolute, const TAMBRO_File_Filter *filter)
{
    // Asked before reading: a user's folder may be renamed aside to free a name.
    std::vector<Row> listed;
    const QSet<QString> fixedNames = addFixedFolders(absolute, listed);
    DIR *dir = opendir(QFile::encodeName(absolute).constData());
    if (!dir)
        return false;
    if (absolute == TAMBRO_FixedFolder::m_sFMRootPath)
        addStorages(listed);
    prefix = absolute.endsWith(u'/') ? absolute : absolute + u'/';
    const size_t firstEntry = listed.size();
    while (const dirent *entry = readdir(dir)) {
        if (isDotOrDotDot(entry->d_name))
            continue;
        Row row = entryRow(entry->d_name, isFolderEntry(dir, entry));
        if (fixedNames.contains(row.name) || (row.kind == File && filter && !filter->match(prefix + row.name)))
            continue;
        listed.push_back(std::move(row));
    }
    closedir(dir);
    // The folders before the files, each group in the listing's order, which
    // some file systems give nearly sorted: sorting it then costs less.
    const auto files = std::stable_partition(listed.begin() + qsizetype(firstEntry), listed.end(),
                                      [](const Row &row) { return row.kind != File; });
    groups[0] = {firstEntry, size_t(files - listed.begin()), firstEntry};
    groups[1] = {groups[0].end, listed.size(), groups[0].end};
    rows = std::move(listed);
    folder = absolute;
    return true;
}

TAMBRO_ListView::TAMBRO_ListView() : d(std::make_unique<Private>()) {}

TAMBRO_ListView::~TAMBRO_ListView() = default;

bool TAMBRO_ListView::setFolder(const QString &folder, const TAMBRO_File_Filter *filter)
{
    auto read = std::make_unique<Private>();
    if (!read->read(QDir::cleanPath(QDir(folder).absolutePath()), filter))
        return false;
    d = std::move(read);
    return true;
}

Row *TAMBRO_ListView::Private::at(int row)
{
    if (row < 0 || size_t(row) >= rows.size())
        return nullptr;
    for (Group &group : groups) {
        if (size_t(row) >= group.ordered && size_t(row) < group.end)
            orderUpTo(group, size_t(row));
    }
    return &rows[size_t(row)];
}

// Twice the rows already in order, and at least a screenful more: the next
// smallest names are picked out (linear time) and only they are sorted, so
// that reading the whole folder costs no more than one sort.
void TAMBRO_ListView::Private::orderUpTo(Group &group, size_t row)
{
    const size_t next = std::min(group.end, std::max({row + 1, group.ordered + OrderedAtOnce,
                                                      2 * group.ordered - group.begin}));
    const auto first = rows.begin() + qsizetype(group.ordered);
    const auto middle = rows.begin() + qsizetype(next);
    if (next < group.end)
        std::nth_element(first, middle, rows.begin() + qsizetype(group.end), byName);
    std::sort(first, middle, byName);
    group.ordered = next;
}

const Details *TAMBRO_ListView::Private::details(int row)
{
    Row *listed = at(row);
    if (!listed)
        return nullptr;
    if (!listed->extra)
        listed->extra = std::make_unique<Extra>();
    Extra &extra = *listed->extra;
    if (!extra.details) {
        const QString path = pathOf(*listed);
        extra.details = listed->kind != File ? folderDetails(path, listed->kind)
                                             : fileDetails(path, extra.bytes.isNull() ? QFile::encodeName(path)
                                                                                      : QFile::encodeName(prefix) + extra.bytes);
    }
    return &*extra.details;
}

QString TAMBRO_ListView::folder() const
{
    return d->folder;
}

QString TAMBRO_ListView::title() const
{
    return d->folder.isEmpty() ? QString() : TAMBRO_Global::getDisplayPathName(d->folder);
}

int TAMBRO_ListView::count() const
{
    return int(d->rows.size());
}

TAMBRO_ListView::Kind TAMBRO_ListView::kind(int row) const
{
    const Row *listed = d->at(row);
    return listed ? listed->kind : File;
}

QString TAMBRO_ListView::path(int row) const
{
    const Row *listed = d->at(row);
    return listed ? d->pathOf(*listed) : QString();
}

QString TAMBRO_ListView::name(int row) const
{
    const Row *listed = d->at(row);
    return listed ? listed->name : QString();
}

QByteArray TAMBRO_ListView::nameBytes(int row) const
{
    const Row *listed = d->at(row);
    return listed && listed->extra ? listed->extra->bytes : QByteArray();
}

QString TAMBRO_ListView::shownName(int row) const
{
    return d->detail(row, &Details::shownName);
}

QString TAMBRO_ListView::bigIcon(int row) const
{
    return d->detail(row, &Details::bigIcon);
}

QString TAMBRO_ListView::smallIcon(int row) const
{
    return d->detail(row, &Details::smallIcon);
}

qint64 TAMBRO_ListView::size(int row) const
{
    return d->detail(row, &Details::size, qint64(-1));
}

QString TAMBRO_ListView::sizeText(int row) const
{
    return d->detail(row, &Details::sizeText);
}

QDateTime TAMBRO_ListView::modified(int row) const
{
    // Made only when asked: a date in local time costs more than the row.
    return row >= 0 && row < count() ? QDateTime::fromSecsSinceEpoch(d->detail(row, &Details::modified)) : QDateTime();
}

TAMBRO_ListView::StorageState TAMBRO_ListView::storageState(int parti)
{
    if (parti < 1 || parti > TAMBRO_Global::getPartiActNumber())
        return Usable;
    if (TAMBRO_Global::isCardLocked(parti))
        return Locked;
    if (TAMBRO_Global::isUnformattedParti(parti))
        return Unformatted;
    if (TAMBRO_Global::isInvalidParti(parti))
        return Invalid;
    return TAMBRO_Global::writeProtected(parti) ? WriteProtected : Usable;
}

QString TAMBRO_ListView::storageStateText(StorageState state)
{
    switch (state) {
    case Locked:
        return QCoreApplication::translate("TAMBRO_ListView", "locked");
    case Unformatted:
        return QCoreApplication::translate("TAMBRO_ListView", "unformatted");
    case Invalid:
        return QCoreApplication::translate("TAMBRO_ListView", "invalid");
    case WriteProtected:
        return QCoreApplication::translate("TAMBRO_ListView", "write-protected");
    case Usable:
        break;
    }
    return QString();
}
