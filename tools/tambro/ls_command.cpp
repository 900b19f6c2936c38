#include "ls_command.h"

#include "folder_listing.h"
#include "list_view_picture.h"
#include "text_table.h"

#include <TAMBRO_FixedFolder.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int Failure = 1;

QJsonObject toJson(const QString &folder, const FolderListing &listing)
{
    QJsonArray entries;
    for (const ListedEntry &entry : listing.entries) {
        entries.append(QJsonObject{
            {QStringLiteral("name"), entry.name},
            {QStringLiteral("shownAs"), entry.shownAs},
            {QStringLiteral("kind"), entry.isFolder ? QStringLiteral("folder") : QStringLiteral("file")},
            {QStringLiteral("bigIcon"), entry.bigIcon},
            {QStringLiteral("smallIcon"), entry.smallIcon},
        });
    }
    return QJsonObject{{QStringLiteral("folder"), folder},
                       {QStringLiteral("title"), listing.title},
                       {QStringLiteral("entries"), entries}};
}

QString textTable(const QJsonObject &listing)
{
    TextTable table({QStringLiteral("KIND"), QStringLiteral("NAME"), QStringLiteral("SHOWN AS"),
                     QStringLiteral("SMALL ICON"), QStringLiteral("BIG ICON")});
    for (const QJsonValue &value : listing[QStringLiteral("entries")].toArray()) {
        const QJsonObject entry = value.toObject();
        QStringList row;
        for (const char *field : {"kind", "name", "shownAs", "smallIcon", "bigIcon"})
            row << entry[QLatin1String(field)].toString();
        table.addRow(row);
    }
    return table.toString();
}

int fail(const QString &message)
{
    QTextStream(stderr) << "tambro: " << message << '\n';
    return Failure;
}

} // namespace

int runLsCommand(QTextStream &out, const Request &request)
{
    const QString folder = request.arguments.value(0, TAMBRO_FixedFolder::m_sFMRootPath);
    if (folder.isEmpty())
        return fail(QStringLiteral("no folder given and TAMBRO_DATA_PATH is not set"));
    // As in the file manager, the fixed folders exist before the first listing.
    TAMBRO_FixedFolder::initialize();
    const std::optional<FolderListing> listing = listFolder(folder);
    if (!listing)
        return fail(QStringLiteral("cannot list '%1': not a readable folder").arg(folder));
    if (!request.png.isNull()) {
        if (!drawListView(*listing).save(request.png, "PNG"))
            return fail(QStringLiteral("cannot write '%1'").arg(request.png));
        return 0;
    }
    return printReport(out, request, toJson(folder, *listing), textTable);
}
