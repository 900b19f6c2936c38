#include "mime_lookup.h"

#include "mimeanswers/system_mime_database.h"

namespace KivSim {

namespace {

using MimeAnswers::SystemMimeDatabase;

// The value of the exact key, else of the first key equal to it ignoring case; else null.
QString valueOf(const KeyFile::Section &section, const QString &key)
{
    const KeyFile::Entry *entry = section.findIgnoringCase(key);
    return entry ? entry->value : QString();
}

QString familyOf(const QString &mimeType)
{
    const qsizetype slash = mimeType.indexOf(u'/');
    return slash > 0 ? mimeType.left(slash) + QStringLiteral("/*") : QString();
}

} // namespace

MimeLookup::MimeLookup(const KeyFile::Section &types, const KeyFile::Section &handlers,
                       const SystemMimeDatabase *system)
    // Whole names are not remembered: each is new, and would push the
    // extensions a listing repeats out of the cache.
    : m_types(types), m_handlers(handlers), m_system(system),
      m_typeAnswers(MimeAnswers::isPlausibleExtension),
      m_handlerAnswers(MimeAnswers::isPlausibleExtension)
{
}

QString MimeLookup::typeOf(const QString &extension) const
{
    return m_typeAnswers.answer(extension, [&] { return workOutTypeOf(extension); });
}

QStringList MimeLookup::extensionsOf(const QString &mimeType) const
{
    QStringList extensions;
    for (const KeyFile::Entry &entry : m_types.entries) {
        if (entry.value.compare(mimeType, Qt::CaseInsensitive) == 0)
            extensions.append(entry.key);
    }
    if (!m_system)
        return extensions;
    // Only what the look-up by extension sends back to the type, so that the
    // two directions agree; a key of the device covers its case variants.
    for (const QString &extension : m_system->extensionsOf(mimeType)) {
        if (!extensions.contains(extension, Qt::CaseInsensitive)
            && typeOf(extension).compare(mimeType, Qt::CaseInsensitive) == 0)
            extensions.append(extension);
    }
    return extensions;
}

QString MimeLookup::handlerForType(const QString &mimeType) const
{
    // Extensions and types share [handlers]; only a key with a slash is a type.
    if (!mimeType.contains(u'/'))
        return QString();
    const QString handler = valueOf(m_handlers, mimeType);
    if (!handler.isNull())
        return handler;
    const QString family = familyOf(mimeType);
    return family.isEmpty() ? QString() : valueOf(m_handlers, family);
}

QString MimeLookup::handlerForExtension(const QString &extension) const
{
    return m_handlerAnswers.answer(extension,
                                   [&] { return workOutHandlerForExtension(extension); });
}

QString MimeLookup::workOutTypeOf(const QString &extension) const
{
    const QString listed = valueOf(m_types, extension);
    if (!listed.isNull() || !m_system)
        return listed;
    return m_system->typeOf(extension);
}

QString MimeLookup::workOutHandlerForExtension(const QString &extension) const
{
    const QString handler = extension.contains(u'/') ? QString() : valueOf(m_handlers, extension);
    if (!handler.isNull())
        return handler;
    return handlerForType(typeOf(extension));
}

} // namespace KivSim
