// The run's own copy of the device folder: the sandbox may change it freely
// while the original stays as it is.
#pragma once

#include <QString>

// The copy lies in a new temporary folder of mode 0700, owned by the caller,
// whatever the device folder's mode: no other user can reach into it. The
// folder also names the kivsim that made it, so that a later kivsim of the
// same user removes it when that one was killed before it could. It goes with
// everything in it when the object goes, whatever the names (any bytes) and
// modes (read-only folders) that the run left there, unless kept.
class DeviceCopy
{
public:
    DeviceCopy();
    ~DeviceCopy();
    DeviceCopy(const DeviceCopy &) = delete;
    DeviceCopy &operator=(const DeviceCopy &) = delete;

    // The copy's folder; empty when the temporary folder could not be made,
    // why in error().
    const QString &path() const { return m_path; }
    const QString &error() const { return m_error; }
    void keep();

    // Copies the content of the folder from, keeping modes, times and links;
    // everything is the caller's. On failure error() says why.
    bool fill(const QString &from);

private:
    QString m_folder; // the temporary folder
    QString m_path; // the copy, in it
    QString m_error;
    bool m_keep = false;
};

// Removes the copies of this user's kivsim runs whose kivsim is gone.
void removeOrphanedCopies();

// Makes sure the file that /etc/mtab shows exists: a missing one is created
// empty, with its folders. Returns false when it had to be created.
bool ensureMountTable(const QString &path);
