// The phone laid out over this machine: the user's own folders serve as its
// storages, in place, and the installed data as its system folders.
#pragma once

#include <QString>

struct HostPhone
{
    QString phoneFolder; // the phone memory
    QString cardFolder; // the memory card; empty: no card
    QString dataFolder; // a device folder: the preloaded content and folder structure
};

// The phone memory unless one is given: kivtambro/phone in the user's data
// folder ($XDG_DATA_HOME), never the home folder itself, whose folders the
// file manager would rename where their names clash with its fixed folders.
QString defaultPhoneFolder();

// Why folder cannot be the phone memory or the card: not a folder, the root
// or the home folder. Empty when it can be.
QString unfitStorageFolder(const QString &folder);

// As root, becomes the owner of the phone folder for the rest of the run, so
// that everything made on this machine is that user's and nothing runs as
// root; the home and session of root's environment are left behind. Why not,
// else an empty text. As any other user, does nothing.
QString becomeOwnerOf(const QString &phoneFolder);
