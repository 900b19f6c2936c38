// What the listing benchmarks ask about: a phone's worth of file names and a
// device file whose registry knows their types.
#pragma once

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <vector>

// The sample phone's registry, with unlisted extensions answered by the
// system's database.
inline const QByteArray BenchmarkDevice = "[registry]\nsystem = 1\n"
                                          "[mime]\nmp3 = audio/mpeg\njpg = image/jpeg\npng = image/png\n"
                                          "3gp = video/3gpp\nmp4 = video/mp4\namr = audio/amr\n"
                                          "txt = text/plain\nvcf = text/x-vcard\njar = application/java-archive\n"
                                          "[handlers]\naudio/* = com.kiv.player\nvideo/* = com.kiv.player\n"
                                          "image/* = com.kiv.viewer\ntxt = com.kiv.notepad\nvcf = com.kiv.contacts\n"
                                          "url = com.kiv.browser\n";

// What that registry answers about the extensions of listingNames(), type and
// handler by extension; null for whatever it does not know, as for the names
// without extension. A registry that answers from this table does the least
// any registry can, so the icon choice on it is the library's own share.
struct RegistryAnswer
{
    const char *extension;
    const char *type;
    const char *handler;
};
inline const RegistryAnswer BenchmarkAnswers[] = {
    {"mp3", "audio/mpeg", "com.kiv.player"},      {"jpg", "image/jpeg", "com.kiv.viewer"},
    {"JPG", "image/jpeg", "com.kiv.viewer"},      {"png", "image/png", "com.kiv.viewer"},
    {"3gp", "video/3gpp", "com.kiv.player"},      {"mp4", "video/mp4", "com.kiv.player"},
    {"amr", "audio/amr", "com.kiv.player"},       {"txt", "text/plain", "com.kiv.notepad"},
    {"vcf", "text/x-vcard", "com.kiv.contacts"},  {"jar", "application/java-archive", nullptr},
    {"url", "application/x-mswinurl", "com.kiv.browser"}, {"xq7", nullptr, nullptr},
    {"dat", nullptr, nullptr},
};

// Points the simulated platform at that device file, kept in the folder.
inline void useBenchmarkDevice(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("device.ini"));
    QFile device(path);
    if (!device.open(QIODevice::WriteOnly) || device.write(BenchmarkDevice) != BenchmarkDevice.size())
        qFatal("cannot write the benchmark's device file");
    qputenv("KIVSIM_DEVICE", QFile::encodeName(path));
    qunsetenv("KIVSIM_JOURNAL");
}

// Mostly media, some documents, unknown types and names without extension,
// in a fixed pseudo-random order.
inline std::vector<QString> listingNames(int count)
{
    const char *extensions[] = {".mp3", ".jpg", ".JPG", ".png", ".3gp", ".mp4", ".amr",
                                ".txt", ".vcf", ".jar", ".url", ".xq7", ".dat", ""};
    QRandomGenerator random(20261121);
    std::vector<QString> result;
    result.reserve(size_t(count));
    for (int i = 0; i < count; ++i) {
        const char *extension = extensions[random.bounded(int(std::size(extensions)))];
        result.push_back(QStringLiteral("file %1").arg(i) + QLatin1String(extension));
    }
    return result;
}
