// The bwrap command line that lays out the phone and runs a command in it.
#pragma once

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

    // Shows a host path (a folder or a file) at the same place inside. The
    // host is visible read-only anyway, so a read-only path is bound only
    // where the sandbox hides the host (under /tmp and /run); a writable one
    // is always bound. A path that would hide a place of the phone or lie in
    // one is not shown: why, else an empty text.
    QString revealHostPath(const QString &path, Access access);
    // Gives the command a private runtime folder of the sandbox's own, for
    // when the host's cannot be shared.
    void useOwnRuntimeFolder();
    void setEnvironment(const QString &name, const QString &value);
    void setWorkingDirectory(const QString &path);

    // Everything after "bwrap": the sandbox, then the command, which starts
    // once the storages hold the device's content.
    QStringList arguments(const QStringList &command) const;

private:
    QStringList phonePlaces() const;
    QStringList hostArguments() const;
    QStringList deviceArguments() const;
    QStringList storageArguments() const;
    QStringList revealArguments() const;
    QStringList processArguments() const;
    QString fillScript() const;

    QString m_deviceCopy;
    SandboxSettings m_settings;
    QMap<QString, Access> m_revealed; // sorted, so that a parent is bound before its children
    QList<QPair<QString, QString>> m_environment;
    QString m_workingDirectory;
    bool m_ownRuntimeFolder = false;
};
