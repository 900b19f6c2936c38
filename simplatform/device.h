// The state of the simulated phone, read from the device file that the
// environment variable KIVSIM_DEVICE names.
//
// The file is looked at (stat) on every call and read again whenever it
// changed, so that a test or a person can change the phone while a program
// runs. Without the variable or the file every value has its default.
#pragma once

#include "keyfile.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>

namespace KivSim {

struct CardState
{
    int status = 0; // what UTIL_GetMMCSDStatus() answers
    int info = 1; // what UTIL_GetMMCSDInfo() answers; 0 makes it fail
    quint8 byte0 = 0; // card information byte 0
    quint8 byte2 = 4; // card information byte 2
    QByteArray label; // volume label, at most 11 bytes
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
    KeyFile::Section mimeTypes; // extension -> MIME type
    KeyFile::Section handlers; // extension, MIME type or family -> application id
    bool systemMimeDatabase = false; // unknown extensions go to the system's database
    QString iconDir; // absolute folder of icon files; empty for the built-in icons
};

// The phone as the device file describes it now. The state returned stays valid
// and unchanged for its holder even if the file changes meanwhile.
std::shared_ptr<const DeviceState> device();

} // namespace KivSim
