// The free and total space of the storage holding a path, as the phone
// writes it; shared by the commands that show it.
#pragma once

#include <QJsonObject>
#include <QString>

// {"available", "total"} in bytes and {"availableText", "totalText"}; the
// numbers null and the texts "-" when the space cannot be asked.
QJsonObject diskSpace(const QString &path);
