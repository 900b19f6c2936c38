// The MIME registry of a platform that answers from a fixed table, linked
// into a benchmark in place of the simulated phone's (a program's own
// definitions come before a shared library's): what the library's work costs
// on it is the library's own share, plus one hash look-up per question.
#include "AM_MimeRegistry.h"

#include "listing_names.h"

#include <QHash>

namespace {

struct Answers
{
    QHash<QString, QString> types;
    QHash<QString, QString> handlers;
};

const Answers &answers()
{
    static const Answers table = [] {
        Answers made;
        for (const RegistryAnswer &answer : BenchmarkAnswers) {
            const QString extension = QString::fromLatin1(answer.extension);
            if (answer.type)
                made.types.insert(extension, QString::fromLatin1(answer.type));
            if (answer.handler)
                made.handlers.insert(extension, QString::fromLatin1(answer.handler));
        }
        return made;
    }();
    return table;
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
    return answers().types.value(extension);
}

QStringList AM_MimeRegistry::getAssociatedExtensions(const QString &)
{
    return {};
}

QString AM_MimeRegistry::getDefaultHandlerId(MIME_LOOKUP_CRITERIA criterion, const QString &key, const QString &)
{
    return criterion == MIME_LOOKUP_BY_EXTENSION ? answers().handlers.value(key) : QString();
}
