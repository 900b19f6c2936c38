// The bwrap command line that lays out the phone and runs a command in it.
#pragma once

#include "hostphone.h"
#include "sandboxsettings.h"

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

class BwrapCommand
{
public:
    enum class Access { ReadOnly, ReadWrite };

    // deviceCopy: the host folder holding the run's copy of the device folder.
    BwrapCommand(const QString &deviceCopy, const SandboxSettings &settings);
    // The phone over this machine: its storages are the user's folders,
    // bound writable in place, and the mount table is the system's own. The
    // command keeps the caller's ids, which must not be root: the buses
    // authenticate a client by the uid it names, which a user namespace would
    // change, so the phone's user (2000:233) is not mapped. The library's
    // handing of its folders to that user then fails harmlessly, and all it
    // makes is the caller's. Call storageProblem() before anything else.
    explicit BwrapCommand(const HostPhone &phone);
    ~BwrapCommand();
    BwrapCommand(const BwrapCommand &) = delete;
    BwrapCommand &operator=(const BwrapCommand &) = delete;

    // The host folder that no run may change, whatever it shares: the device
    // folder. A writable path in it is refused; one that holds it keeps it
    // read-only.
    void protectFolder(const QString &folder);
    // Why a storage folder of the phone on this machine cannot be bound; empty
    // when all can.
    const QString &storageProblem() const { return m_storageProblem; }

    // Shows a host path (a folder or a file) at the same place inside, judged
    // by where it leads once its links are resolved. The host is visible
    // read-only anyway, so a read-only path is bound only where the sandbox
    // hides the host (under /tmp and /run); a writable one is always bound,
    // by a descriptor opened before it is judged, so that what was judged is
    // what is bound (openFile: one opened already, which is used instead). A
    // path that would hide a place of the phone or lie in one, or a writable
    // one in the protected folder, is not shown: why, else an empty text.
    QString revealHostPath(const QString &path, Access access, int openFile = -1);
    // Gives the command a private runtime folder of the sandbox's own, for
    // when the host's cannot be shared.
    void useOwnRuntimeFolder();
    // Whether the command runs as the phone's user rather than the caller:
    // so when kivsim runs as root.
    bool handsOverToPhoneUser() const { return m_asRoot; }
    void setEnvironment(const QString &name, const QString &value);
    void setWorkingDirectory(const QString &path);

    // Everything after "bwrap": the sandbox, then the command, which starts
    // once the storages hold the device's content.
    QStringList arguments(const QStringList &command) const;
    // The descriptors that the arguments name, for bwrap to inherit.
    QList<int> descriptors() const;

private:
    QStringList phonePlaces() const;
    QStringList hostArguments() const;
    QStringList deviceArguments() const;
    QStringList storageArguments() const;
    QStringList revealArguments() const;
    QStringList processArguments() const;
    QStringList privilegeArguments() const;
    QString clashOf(const QString &path, Access access) const;
    QString fillScript() const;
    void bindStorage(const QString &folder, const QString &mountPoint);
    QStringList hostStorageArguments() const;

    QString m_deviceCopy;
    SandboxSettings m_settings;
    struct Revealed
    {
        Access access = Access::ReadOnly;
        int fd = -1; // for a writable one
    };
    QMap<QString, Revealed> m_revealed; // sorted, so that a parent is bound before its children
    QString m_protectedFolder;
    bool m_asRoot = false;
    QList<QPair<QString, QString>> m_environment;
    QString m_workingDirectory;
    bool m_ownRuntimeFolder = false;
    bool m_onHost = false;
    struct StorageBind
    {
        int fd = -1; // the user's folder, opened before it was judged
        QString mountPoint;
    };
    QList<StorageBind> m_storageBinds;
    QString m_storageProblem;
};
