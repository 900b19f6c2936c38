// The simulated phone's device file: whatever it holds, the platform answers
// every question from it, and the registry's two directions agree.
#include "fuzz_input.h"

#include "simplatform/device.h"

#include "AM_MimeRegistry.h"
#include "SETUP_Utility.h"
#include "UTIL_MMCSD.h"

#include <QFile>

#include <cstdint>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    quietMessages();
    // Before the platform's first call, which reads the variables once.
    [[maybe_unused]] static const bool named =
        qputenv("KIVSIM_DEVICE", QFile::encodeName(asFile(nullptr, 0))) && qunsetenv("KIVSIM_JOURNAL");
    asFile(data, size);
    KivSim::lookAtDeviceAgain();
    const bool systemDatabase = KivSim::device()->systemMimeDatabase;
    const auto block = std::make_unique<unsigned char[]>(UTIL_MMCSD_INFO_SIZE); // the sanitizer sees any write past it
    UTIL_GetMMCSDInfo(block.get(), "/dev/mmca");
    const KeyFile file = KeyFile::parse(bytes(data, size), QStringLiteral("fuzz"));
    bool bit = false;
    for (const QString &key : file.keys(QStringLiteral("flex")))
        SETUP_Utility().getFlexBit(quint16(KeyFile::toNumber(key).value_or(0)), bit);
    AM_MimeRegistry registry;
    for (const QString &section : {QStringLiteral("mime"), QStringLiteral("handlers")}) {
        for (const QString &key : file.keys(section)) {
            const QString type = registry.getAssociatedMimeType(key);
            // The system's database has aliases and globs of its own.
            check(type.isNull() || systemDatabase || registry.getAssociatedExtensions(type).contains(key, Qt::CaseInsensitive),
                  "a type does not list the extension it was found for");
            registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, key, QString());
            registry.getDefaultHandlerId(MIME_LOOKUP_BY_MIMETYPE, type.isNull() ? key : type, QString());
        }
    }
    // Back to an empty phone: a run then frees what it takes, and the leak check stays quiet.
    asFile(nullptr, 0);
    KivSim::lookAtDeviceAgain();
    KivSim::device();
    return 0;
}
