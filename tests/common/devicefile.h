// A simulated phone outside kivsim: the device file of one test process, and
// its journal, in a temporary folder.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

class TestDeviceFile
{
public:
    // Names the files in KIVSIM_DEVICE and KIVSIM_JOURNAL; construct it
    // before the first platform call.
    TestDeviceFile() : m_path(m_dir.filePath(QStringLiteral("device.ini")))
    {
        qputenv("KIVSIM_DEVICE", QFile::encodeName(m_path));
        qputenv("KIVSIM_JOURNAL", QFile::encodeName(m_dir.filePath(QStringLiteral("journal.jsonl"))));
    }

    // Every write gets a later modification time, so that a rewrite of the same
    // size within the file system's clock tick is noticed as a change too.
    bool write(const QByteArray &content) { return writeTo(m_path, content); }

    // Writes another file of the folder the same way.
    bool writeTo(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
            return false;
        const QDateTime stamp = QDateTime(QDate(2020, 1, 1), QTime(0, 0)).addSecs(++m_writes);
        return file.setFileTime(stamp, QFileDevice::FileModificationTime);
    }

    // A new file put in place by renaming, as editors and QSaveFile do.
    bool replace(const QByteArray &content)
    {
        QSaveFile file(m_path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    }

    bool remove() { return QFile::remove(m_path); }
    QString path() const { return m_path; }
    QDir dir() const { return QDir(m_dir.path()); }

private:
    QTemporaryDir m_dir;
    QString m_path;
    int m_writes = 0;
};
