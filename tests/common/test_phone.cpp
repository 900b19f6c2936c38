#include "test_phone.h"

#include "devicefile.h"

#include <QDir>
#include <QJsonObject>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace TestPhone {

void startJournal()
{
    const QString path = QDir::tempPath() + QStringLiteral("/kivtambro-test-journal.jsonl");
    QFile::remove(path);
    qputenv("KIVSIM_JOURNAL", QFile::encodeName(path));
}

void setMountTable(const QByteArray &text)
{
    // /etc/mtab is a bind-mounted file: rewrite it in place.
    QFile file(QStringLiteral("/etc/mtab"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size())
        qFatal("cannot write /etc/mtab: %s", qPrintable(file.errorString()));
}

void setDevice(const QByteArray &ini)
{
    // A new file under the same name, so the platform sees a change even
    // within one tick of the file system's clock.
    QSaveFile file(qEnvironmentVariable("KIVSIM_DEVICE"));
    if (!file.open(QIODevice::WriteOnly) || file.write(ini) != ini.size() || !file.commit())
        qFatal("cannot replace the device file: %s", qPrintable(file.errorString()));
    TestDeviceFile::changed();
}

QList<QByteArray> journalLines()
{
    QFile file(qEnvironmentVariable("KIVSIM_JOURNAL"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> lines = file.readAll().split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

QStringList journalled(const char *call, const char *argument)
{
    QStringList values;
    for (const QByteArray &line : journalLines()) {
        const QJsonObject entry = QJsonDocument::fromJson(line).object();
        if (!call || entry.value(QStringLiteral("call")) == QLatin1String(call))
            values.append(entry.value(QLatin1String(argument)).toString());
    }
    return values;
}

QStringList journalCalls()
{
    return journalled(nullptr, "call");
}

void clearJournal()
{
    QFile file(qEnvironmentVariable("KIVSIM_JOURNAL"));
    if (file.exists() && !file.resize(0))
        qFatal("cannot clear the journal: %s", qPrintable(file.errorString()));
}

} // namespace TestPhone
