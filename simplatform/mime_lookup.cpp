#include "mime_lookup.h"

#include "system_mime_database.h"

namespace KivSim {

namespace {

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
      m_typeAnswers(isPlausibleExtension), m_handlerAnswers(isPlausibleExtension)
{
}

QString MimeLookup::typeOf(const QString &extension) const
{
    return m_typeAnswers.answer(extension, [&] { return workOutTypeOf(extension); });
}

QStringList MimeLookup::extensionsOf(const QString &mimeType) const
{
    QStringList extensions = m_types.keysWithValue(mimeType);
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
    const QString handler = m_handlers.value(mimeType);
    if (!handler.isNull())
        return handler;
    const QString family = familyOf(mimeType);
    return family.isEmpty() ? QString() : m_handlers.value(family);
}

QString MimeLookup::handlerForExtension(const QString &extension) const
{
    return m_handlerAnswers.answer(extension,
                                   [&] { return workOutHandlerForExtension(extension); });
}

QString MimeLookup::workOutTypeOf(const QString &extension) const
{
    const QString listed = m_types.value(extension);
    if (!listed.isNull() || !m_system)
        return listed;
    return m_system->typeOf(extension);
}

QString MimeLookup::workOutHandlerForExtension(const QString &extension) const
{
    const QString handler = extension.contains(u'/') ? QString() : m_handlers.value(extension);
    if (!handler.isNull())
        return handler;
    return handlerForType(typeOf(extension));
}

} // namespace KivSim
