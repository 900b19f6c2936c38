// The MIME registry on this machine: types and extensions from the shared
// MIME database, each extension's answers remembered, since a listing asks
// for every name; the default handler by the XDG default applications.
#include "AM_MimeRegistry.h"

#include "mimeanswers/answer_table.h"
#include "applications.h"
#include "mimeanswers/system_mime_database.h"

namespace {

using MimeAnswers::AnswerTable;
using MimeAnswers::SystemMimeDatabase;

AnswerTable &typeAnswers()
{
    static AnswerTable answers(MimeAnswers::isPlausibleExtension);
    return answers;
}

AnswerTable &handlerAnswers()
{
    static AnswerTable answers(MimeAnswers::isPlausibleExtension);
    return answers;
}

} // namespace

AM_MimeRegistry::AM_MimeRegistry() = default;

AM_MimeRegistry::~AM_MimeRegistry() = default;

int AM_MimeRegistry::init(MIME_FILE_T)
{
    return 0;
}

QString AM_MimeRegistry::getAssociatedMimeType(const QString &extension)
{
    return typeAnswers().answer(extension, [&] { return SystemMimeDatabase::host().typeOf(extension); });
}

QStringList AM_MimeRegistry::getAssociatedExtensions(const QString &mimeType)
{
    return SystemMimeDatabase::host().extensionsOf(mimeType);
}

QString AM_MimeRegistry::getDefaultHandlerId(MIME_LOOKUP_CRITERIA criterion, const QString &key, const QString &)
{
    if (criterion == MIME_LOOKUP_BY_MIMETYPE)
        return KivHost::applications().defaultApplication(key);
    return handlerAnswers().answer(key, [&] {
        const QString type = getAssociatedMimeType(key);
        return type.isEmpty() ? QString() : KivHost::applications().defaultApplication(type);
    });
}
