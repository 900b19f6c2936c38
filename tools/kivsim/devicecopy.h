// The run's own copy of the device folder: the sandbox may change it freely
// while the original stays as it is.
#pragma once

#include <QString>

// A new temporary folder for the copy, removed with everything in it when
// the object goes, whatever the names (any bytes) and modes (read-only
// folders) that the run left there, unless kept.
class DeviceCopy
{
public:
    DeviceCopy();
    ~DeviceCopy();
    DeviceCopy(const DeviceCopy &) = delete;
    DeviceCopy &operator=(const DeviceCopy &) = delete;

    // Empty when the folder could not be made; why in error().
    const QString &path() const { return m_path; }
    const QString &error() const { return m_error; }
    void keep() { m_keep = true; }

    // Copies the content of the folder from, keeping modes, times and links.
    // On failure error() says why.
    bool fill(const QString &from);

private:
    QString m_path;
    QString m_error;
    bool m_keep = false;
};

// Makes sure the file that /etc/mtab shows exists: a missing one is created
// empty, with its folders. Returns false when it had to be created.
bool ensureMountTable(const QString &path);
