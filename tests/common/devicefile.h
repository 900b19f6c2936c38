// A simulated phone outside kivsim: the device file of one test process, and
// its journal, in a temporary folder.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <chrono>
#include <thread>

#include <time.h>

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
    bool write(const QByteArray &content)
    {
        QFile file(m_path);
        const QDateTime stamp = QDateTime(QDate(2020, 1, 1), QTime(0, 0)).addSecs(++m_writes);
        return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size()
            && file.setFileTime(stamp, QFileDevice::FileModificationTime) && changed();
    }

    // A new file put in place by renaming, as editors and QSaveFile do.
    bool replace(const QByteArray &content)
    {
        QSaveFile file(m_path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit()
            && changed();
    }

    // The platform looks at its device file once per tick of the system's
    // coarse clock at most: a change is seen by the calls made once the clock
    // has moved on, which sleeping for its resolution does not always bring.
    static bool changed()
    {
        timespec start, now;
        clock_gettime(CLOCK_MONOTONIC_COARSE, &start);
        do {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
        } while (now.tv_sec == start.tv_sec && now.tv_nsec == start.tv_nsec);
        return true;
    }

    QDir dir() const { return QDir(m_dir.path()); }

private:
    QTemporaryDir m_dir;
    QString m_path;
    int m_writes = 0;
};
