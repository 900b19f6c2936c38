#include "ls_command.h"

#include "list_view_picture.h"
#include "output.h"
#include "printable/printable_text.h"
#include "text_table.h"

#include <TAMBRO_File_Filter.h>
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>
#include <TAMBRO_ListView.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString kindName(TAMBRO_ListView::Kind kind)
{
    switch (kind) {
    case TAMBRO_ListView::Folder:
        return QStringLiteral("folder");
    case TAMBRO_ListView::Storage:
        return QStringLiteral("storage");
    case TAMBRO_ListView::File:
        break;
    }
    return QStringLiteral("file");
}

QJsonObject rowObject(const TAMBRO_ListView &listing, int row)
{
    QJsonObject object{
        {QStringLiteral("name"), listing.name(row)},
        {QStringLiteral("shownAs"), listing.shownName(row)},
        {QStringLiteral("kind"), kindName(listing.kind(row))},
        {QStringLiteral("bigIcon"), listing.bigIcon(row)},
        {QStringLiteral("smallIcon"), listing.smallIcon(row)},
    };
    if (!listing.nameBytes(row).isEmpty())
        object.insert(QStringLiteral("nameBytes"), jsonBytes(listing.nameBytes(row)));
    if (listing.kind(row) == TAMBRO_ListView::File) {
        object.insert(QStringLiteral("size"), listing.size(row));
        object.insert(QStringLiteral("sizeText"), listing.sizeText(row));
        object.insert(QStringLiteral("modified"), TAMBRO_Global::convertDateTime(listing.modified(row)));
    }
    return object;
}

QJsonObject toJson(const QString &folder, const TAMBRO_ListView &listing)
{
    QJsonArray entries;
    for (int row = 0; row < listing.count(); ++row)
        entries.append(rowObject(listing, row));
    return QJsonObject{{QStringLiteral("folder"), folder},
                       {QStringLiteral("title"), listing.title()},
                       {QStringLiteral("entries"), entries}};
}

QString textTable(const QJsonObject &listing)
{
    TextTable table({QStringLiteral("KIND"), QStringLiteral("NAME"), QStringLiteral("SHOWN AS"),
                     QStringLiteral("SIZE"), QStringLiteral("MODIFIED"), QStringLiteral("SMALL ICON"),
                     QStringLiteral("BIG ICON")});
    for (const QJsonValue &value : listing[QStringLiteral("entries")].toArray()) {
        const QJsonObject entry = value.toObject();
        QStringList row;
        for (const char *field : {"kind", "name", "shownAs", "sizeText", "modified", "smallIcon", "bigIcon"})
            row << printableText(entry[QLatin1String(field)].toString());
        row[1] = printableName(entry[QStringLiteral("name")], entry[QStringLiteral("nameBytes")]);
        table.addPrintableRow(row);
    }
    return printableText(listing[QStringLiteral("title")].toString()) + QStringLiteral("\n\n") + table.toString();
}

int writePicture(const QString &path, const TAMBRO_ListView &listing)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    QString error;
    if (!drawListView(listing).save(&buffer, "PNG") || !writeWholeFile(path, png, error))
        return reportFailure(QStringLiteral("cannot write '%1': %2").arg(path, error));
    return 0;
}

// As a picker builds its filter: extensions in any case, patterns as wildcards.
std::optional<TAMBRO_File_Filter> fileFilter(const Request &request)
{
    if (!request.filter.isNull())
        return TAMBRO_File_Filter(request.filter, false, true);
    if (!request.filterList.isNull())
        return TAMBRO_File_Filter(request.filterList.split(u','), false, true);
    if (request.ringTones)
        return TAMBRO_File_Filter(TAMBRO_FILTER_RING_TONES, false, true);
    return std::nullopt;
}

} // namespace

QString lsMisuse(const Request &request)
{
    if (int(!request.filter.isNull()) + int(!request.filterList.isNull()) + int(request.ringTones) > 1)
        return QStringLiteral("--filter, --filter-list and --ringtones do not go together");
    return QString();
}

int runLsCommand(QTextStream &out, const Request &request)
{
    const QString folder = request.arguments.value(0, TAMBRO_FixedFolder::m_sFMRootPath);
    if (folder.isEmpty())
        return reportFailure(QStringLiteral("no folder given and TAMBRO_DATA_PATH is not set"));
    // As in the file manager, the fixed folders exist before the first listing.
    TAMBRO_FixedFolder::initialize();
    const std::optional<TAMBRO_File_Filter> filter = fileFilter(request);
    TAMBRO_ListView listing;
    if (!listing.setFolder(folder, filter ? &*filter : nullptr))
        return reportFailure(QStringLiteral("cannot list '%1': not a readable folder").arg(folder));
    if (!request.png.isNull())
        return writePicture(request.png, listing);
    return printReport(out, request, toJson(folder, listing), textTable);
}
