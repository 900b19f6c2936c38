#include "path_command.h"

#include "text_table.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonArray subfolders(const QString &path)
{
    QJsonArray list;
    if (const QList<FixedFolder> *fixed = TAMBRO_FixedFolder::getFixedFolderList(path)) {
        for (const FixedFolder &folder : *fixed)
            list.append(QJsonObject{{QStringLiteral("name"), folder.displayName},
                                    {QStringLiteral("path"), folder.absolutePath},
                                    {QStringLiteral("bigIcon"), folder.bigIcon},
                                    {QStringLiteral("smallIcon"), folder.smallIcon}});
    }
    return list;
}

QJsonObject describePath(const QString &path)
{
    QString parentPath;
    QString parentName;
    TAMBRO_Global::getFolderParent(path, parentPath, parentName);
    QStringList links;
    TAMBRO_FixedFolder::getInvLink(path, links);
    return QJsonObject{
        {QStringLiteral("path"), path},
        {QStringLiteral("location"), TAMBRO_Global::getDisplayPathName(path)},
        {QStringLiteral("shortName"), TAMBRO_Global::getShortName(path)},
        {QStringLiteral("parentPath"), parentPath},
        {QStringLiteral("parentName"), parentName},
        {QStringLiteral("level"), TAMBRO_Global::getFolderLevel(path)},
        {QStringLiteral("mountFolderOf"), TAMBRO_Global::isPartiName(path)},
        {QStringLiteral("partition"), TAMBRO_Global::isPartiSubFolder(path)},
        {QStringLiteral("fixedFolder"), TAMBRO_FixedFolder::isFixedFolder(path)},
        {QStringLiteral("subfolders"), subfolders(path)},
        {QStringLiteral("invisibleLinks"), QJsonArray::fromStringList(links)},
    };
}

QString number(const QJsonValue &value)
{
    return value.toInt() ? QString::number(value.toInt()) : QStringLiteral("-");
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString subfolderNames(const QJsonArray &subfolders)
{
    QStringList names;
    for (const QJsonValue &folder : subfolders)
        names << folder[QStringLiteral("name")].toString() + QStringLiteral(" (")
                + folder[QStringLiteral("path")].toString() + u')';
    return orDash(names.join(QStringLiteral(", ")));
}

QString pathTable(const QJsonObject &p)
{
    TextTable table({QStringLiteral("Path"), p[QStringLiteral("path")].toString()});
    table.addRow({QStringLiteral("Location"), orDash(p[QStringLiteral("location")].toString())});
    table.addRow({QStringLiteral("Short name"), orDash(p[QStringLiteral("shortName")].toString())});
    table.addRow({QStringLiteral("Parent"), p[QStringLiteral("parentPath")].toString() + QStringLiteral(" (")
                                               + p[QStringLiteral("parentName")].toString() + u')'});
    table.addRow({QStringLiteral("Level"), QString::number(p[QStringLiteral("level")].toInt())});
    table.addRow({QStringLiteral("Mount folder of"), number(p[QStringLiteral("mountFolderOf")])});
    table.addRow({QStringLiteral("Partition"), number(p[QStringLiteral("partition")])});
    table.addRow({QStringLiteral("Fixed folder"),
                  p[QStringLiteral("fixedFolder")].toBool() ? QStringLiteral("yes") : QStringLiteral("no")});
    table.addRow({QStringLiteral("Subfolders"), subfolderNames(p[QStringLiteral("subfolders")].toArray())});
    QStringList links;
    for (const QJsonValue &link : p[QStringLiteral("invisibleLinks")].toArray())
        links << link.toString();
    table.addRow({QStringLiteral("Invisible links"), orDash(links.join(QStringLiteral(", ")))});
    return table.toString();
}

QString textReport(const QJsonArray &paths)
{
    QStringList blocks;
    for (const QJsonValue &path : paths)
        blocks << pathTable(path.toObject());
    return blocks.join(u'\n');
}

} // namespace

int runPathCommand(QTextStream &out, const Request &request)
{
    QJsonArray paths;
    for (const QString &path : request.arguments)
        paths.append(describePath(path));
    return printReport(out, request, paths, textReport);
}
