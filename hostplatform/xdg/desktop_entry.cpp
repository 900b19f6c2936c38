#include "desktop_entry.h"

#include "keyfile.h"
#include "regularfile/regular_file.h"

#include <QDir>

#include <algorithm>
#include <limits>

namespace KivHost {

namespace {

// The character an escape "\c" of a string value stands for; none when the
// backslash is not an escape.
std::optional<QChar> escaped(QChar c)
{
    switch (c.unicode()) {
    case u's': return QChar(u' ');
    case u'n': return QChar(u'\n');
    case u't': return QChar(u'\t');
    case u'r': return QChar(u'\r');
    case u'\\': return QChar(u'\\');
    default: return std::nullopt;
    }
}

// Appends raw[i] (a backslash) and what it escapes to out; the index of the
// last character used.
qsizetype appendEscape(QStringView raw, qsizetype i, QString &out)
{
    if (i + 1 < raw.size()) {
        if (const std::optional<QChar> c = escaped(raw[i + 1])) {
            out.append(*c);
            return i + 1;
        }
    }
    out.append(u'\\');
    return i;
}

// The [Desktop Entry] group, and the line of the next group's header.
const KeyFile::Section *desktopEntryGroup(const KeyFile &file, int *nextHeaderLine)
{
    const QList<KeyFile::Section> &sections = file.sections();
    for (qsizetype i = 0; i < sections.size(); ++i) {
        if (sections[i].name != QLatin1String("Desktop Entry"))
            continue;
        *nextHeaderLine = i + 1 < sections.size() ? sections[i + 1].line : std::numeric_limits<int>::max();
        return &sections[i];
    }
    return nullptr;
}

// The lines before the given one.
QByteArray linesBefore(const QByteArray &data, int line)
{
    qsizetype end = -1;
    for (int n = 1; n < line; ++n) {
        end = data.indexOf('\n', end + 1);
        if (end < 0)
            return data;
    }
    return data.first(end + 1);
}

// The file, of which only the first [Desktop Entry] group counts. KeyFile
// joins a repeated group to its first place, where a repeated key replaces
// the first value: a file with an entry of the group after the next group's
// header is read again up to that header.
KeyFile desktopFile(const QByteArray &data, const QString &path)
{
    KeyFile file = KeyFile::parse(data, path);
    int nextHeaderLine = 0;
    const KeyFile::Section *group = desktopEntryGroup(file, &nextHeaderLine);
    if (group && std::any_of(group->entries.cbegin(), group->entries.cend(),
                             [&](const KeyFile::Entry &e) { return e.line > nextHeaderLine; }))
        return KeyFile::parse(linesBefore(data, nextHeaderLine), path);
    return file;
}

} // namespace

bool DesktopEntry::isApplication() const
{
    return type == QLatin1String("Application") && !hidden && (!exec.isEmpty() || dbusActivatable);
}

QString unescapedValue(QStringView raw)
{
    QString out;
    out.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] == u'\\')
            i = appendEscape(raw, i, out);
        else
            out.append(raw[i]);
    }
    return out;
}

QStringList listValue(QStringView raw)
{
    QStringList items;
    QString item;
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] == u';') {
            if (!item.isEmpty())
                items.append(item);
            item.clear();
        } else if (raw[i] == u'\\' && i + 1 < raw.size() && raw[i + 1] == u';') {
            item.append(u';');
            ++i;
        } else if (raw[i] == u'\\') {
            i = appendEscape(raw, i, item);
        } else {
            item.append(raw[i]);
        }
    }
    if (!item.isEmpty())
        items.append(item);
    return items;
}

QString desktopFileId(const QString &applicationsFolder, const QString &path)
{
    return QDir(applicationsFolder).relativeFilePath(path).replace(u'/', u'-');
}

std::optional<DesktopEntry> readDesktopEntry(const QString &path, const QString &id)
{
    const Tambro::FileContent content = Tambro::readRegularFile(path, maxDesktopFileBytes);
    if (content.status != Tambro::FileContent::Read)
        return std::nullopt;
    const KeyFile file = desktopFile(content.data, path);
    int nextHeaderLine = 0;
    const KeyFile::Section *group = desktopEntryGroup(file, &nextHeaderLine);
    if (!group)
        return std::nullopt;
    const auto raw = [&](const char *key) {
        const KeyFile::Entry *entry = group->find(QLatin1String(key));
        return entry ? entry->value : QString();
    };
    // Booleans are "true" or "false"; anything else is the neutral false.
    const auto flag = [&](const char *key) { return raw(key).trimmed() == QLatin1String("true"); };

    DesktopEntry entry;
    entry.id = id;
    entry.path = path;
    entry.type = unescapedValue(raw("Type"));
    entry.name = unescapedValue(raw("Name"));
    entry.icon = unescapedValue(raw("Icon"));
    entry.exec = unescapedValue(raw("Exec"));
    entry.tryExec = unescapedValue(raw("TryExec"));
    entry.mimeTypes = listValue(raw("MimeType"));
    entry.dbusActivatable = flag("DBusActivatable");
    entry.hidden = flag("Hidden");
    entry.noDisplay = flag("NoDisplay");
    return entry;
}

} // namespace KivHost
