// The state of the simulated phone, read from the device file that the
// environment variable KIVSIM_DEVICE names when the first platform call is made.
//
// A platform call looks whether the file changed, and reads it again when it
// did, so that a test or a person can change the phone while a program runs.
// It looks once per tick of the system's coarse clock (CLOCK_MONOTONIC_COARSE,
// a few milliseconds) at most: a change is seen by the calls made a tick
// after it, or later. Changed means a new stamp (inode, size or
// modification time), so rewriting the file in place with as many bytes
// within one tick of the file system's clock goes unseen. Without the
// variable or the file every value has its default.
#pragma once

#include "kivsim_export.h"
#include "mime_lookup.h"

#include "UTIL_MMCSD.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>

namespace KivSim {

struct CardState
{
    int status = 0; // what UTIL_GetMMCSDStatus() answers
    int info = 1; // what UTIL_GetMMCSDInfo() answers; 0 makes it fail
    quint8 cardFlags = 0; // card information byte 0, "byte0" in the file
    quint8 formatFlags = UTIL_MMCSD_FORMATTED; // card information byte 2, "byte2"
    QByteArray label; // volume label, at most UTIL_MMCSD_LABEL_LENGTH bytes
};

struct MegaSimState
{
    bool initialize = true; // result of DmtTreeFactory::Initialize()
    int subtree = 0; // error code of DmtTreeFactory::GetSubtree()
    bool node = true; // whether the node look-up succeeds
    bool value = true; // whether reading the node's value succeeds
    QByteArray name; // the "MegaSIMName" text
};

struct DeviceState
{
    CardState card;
    MegaSimState megaSim;
    QHash<quint16, bool> flexBits; // the listed bits of the feature table
    QHash<QString, int> services; // [services]: what the services library's operations answer
    bool systemMimeDatabase = false; // unknown extensions go to the system's database
    // [mime] and [handlers], with the answers given so far.
    std::shared_ptr<const MimeLookup> mime = std::make_shared<const MimeLookup>();
    QString iconDir; // absolute folder of icon files; empty for the built-in icons
};

// The phone as the device file describes it now. The state returned stays valid
// and unchanged for its holder even if the file changes meanwhile.
KIVSIM_EXPORT std::shared_ptr<const DeviceState> device();
// Makes the next call look at the file whatever the clock says: for a program
// that changes the file itself and cannot wait, such as a fuzz target.
KIVSIM_EXPORT void lookAtDeviceAgain();

} // namespace KivSim
