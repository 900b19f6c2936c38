#include "documents.h"

#include "regularfile/regular_file.h"

#include <QRegularExpression>
#include <QStringList>

namespace KivPlatform {

namespace {

// Bookmarks and descriptors are small text files.
constexpr qint64 MaxDocumentBytes = 64 * 1024;

std::optional<QStringList> linesOf(const QString &path)
{
    const Tambro::FileContent content = Tambro::readRegularFile(path, MaxDocumentBytes);
    if (content.status != Tambro::FileContent::Read)
        return std::nullopt;
    return QString::fromUtf8(content.data).split(QRegularExpression(QStringLiteral("\r?\n")));
}

// The value after "key" and the separator, the key compared ignoring case.
std::optional<QString> valueOf(const QString &line, const QString &key, QChar separator)
{
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith(key, Qt::CaseInsensitive) || trimmed.mid(key.size(), 1) != separator)
        return std::nullopt;
    return trimmed.mid(key.size() + 1).trimmed();
}

} // namespace

std::optional<QString> bookmarkUrl(const QString &path)
{
    const std::optional<QStringList> lines = linesOf(path);
    if (!lines)
        return std::nullopt;
    bool inShortcut = false;
    for (const QString &line : *lines) {
        if (line.trimmed().startsWith(u'['))
            inShortcut = line.trimmed().compare(QLatin1String("[InternetShortcut]"), Qt::CaseInsensitive) == 0;
        const std::optional<QString> url = inShortcut ? valueOf(line, QStringLiteral("URL"), u'=')
                                                      : valueOf(line, QStringLiteral("URL"), u':');
        if (url)
            return url;
    }
    return std::nullopt;
}

std::optional<JavaDescriptor> javaDescriptor(const QString &path)
{
    const std::optional<QStringList> lines = linesOf(path);
    if (!lines)
        return std::nullopt;
    static const QRegularExpression application(QStringLiteral("^MIDlet-\\d+:"), QRegularExpression::CaseInsensitiveOption);
    JavaDescriptor descriptor;
    for (const QString &line : *lines) {
        if (const std::optional<QString> url = valueOf(line, QStringLiteral("MIDlet-Jar-URL"), u':'))
            descriptor.archiveName = url->section(u'/', -1);
        else if (application.match(line.trimmed()).hasMatch())
            ++descriptor.applications;
    }
    return descriptor;
}

} // namespace KivPlatform
