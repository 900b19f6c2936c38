// The simulated MIME registry's look-ups over one device state, shared by
// AM_MimeRegistry and UTIL_MimeType. Nothing here is journaled.
//
// Answers by extension are remembered for the life of the state (a changed
// device file makes a new one): a listing asks about the same few extensions
// over and over, and the system's database is far slower than a hash look-up,
// so it is asked once per extension.
#pragma once

#include "keyfile.h"

#include "mimeanswers/answer_table.h"

#include <QString>
#include <QStringList>

namespace MimeAnswers {
class SystemMimeDatabase;
}

namespace KivSim {

class MimeLookup
{
public:
    // types: extension -> MIME type; handlers: extension, MIME type or family
    // -> application id; system: asked about extensions missing from types,
    // none when null.
    explicit MimeLookup(const KeyFile::Section &types = {}, const KeyFile::Section &handlers = {},
                        const MimeAnswers::SystemMimeDatabase *system = nullptr);

    // The types entry for the extension (exact key, then the first ignoring
    // case); else the system's answer; else null.
    QString typeOf(const QString &extension) const;
    // The types keys mapped to the type, in file order; then the system's
    // extensions for the type whose own look-up answers that type.
    QStringList extensionsOf(const QString &mimeType) const;
    // The handlers entry for the type, else for its family ("audio/*"); else null.
    QString handlerForType(const QString &mimeType) const;
    // The handlers entry for the extension, else the handler of its type; else null.
    QString handlerForExtension(const QString &extension) const;

private:
    QString workOutTypeOf(const QString &extension) const;
    QString workOutHandlerForExtension(const QString &extension) const;

    KeyFile::Section m_types;
    KeyFile::Section m_handlers;
    const MimeAnswers::SystemMimeDatabase *m_system;
    mutable MimeAnswers::AnswerTable m_typeAnswers;
    mutable MimeAnswers::AnswerTable m_handlerAnswers;
};

} // namespace KivSim
