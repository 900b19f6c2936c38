// The simulated phone's MIME registry as a folder listing uses it: every name
// is classified by up to three type look-ups and one handler look-up of its
// extension, on a phone that also answers from the system's MIME database.
// No journal. The platform alone: the library's share is file_icon_bench's.
#include "AM_MimeRegistry.h"
#include "UTIL_MMCSD.h"

#include <QFile>
#include <QMimeDatabase>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

const QByteArray device = R"([mime]
mp3 = audio/mpeg
jpg = image/jpeg
3gp = video/3gpp
txt = text/plain
vcf = text/x-vcard
jad = text/vnd.sun.j2me.app-descriptor
[handlers]
txt = com.kiv.notepad
audio/* = com.kiv.player
image/* = com.kiv.imageviewer
video/* = com.kiv.videoplayer
[registry]
system = 1
)";

// A listing's mix: listed, system-known and unknown extensions, in both cases.
const char *const listingNames[] = {
    "song.mp3", "photo.jpg", "clip.3gp", "notes.txt", "card.vcf", "game.jad", "scan.png",
    "movie.mp4", "paper.pdf", "SONG.MP3", "IMG_0001.JPG", "archive.tar", "data.qqzzy", "readme",
};

void mimeType(benchmark::State &state, const char *asked)
{
    AM_MimeRegistry registry;
    const QString extension = QString::fromLatin1(asked);
    for (auto _ : state)
        benchmark::DoNotOptimize(registry.getAssociatedMimeType(extension));
}
BENCHMARK_CAPTURE(mimeType, listed, "mp3");
BENCHMARK_CAPTURE(mimeType, listedOtherCase, "MP3");
BENCHMARK_CAPTURE(mimeType, fromSystem, "png");
BENCHMARK_CAPTURE(mimeType, wholeName, "Photo 0001");

void handlerByExtension(benchmark::State &state)
{
    AM_MimeRegistry registry;
    const QString extension = QStringLiteral("mp3");
    for (auto _ : state)
        benchmark::DoNotOptimize(registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, extension, QString()));
}
BENCHMARK(handlerByExtension);

// The cheapest platform call: little more than finding the current device
// state, which looks at the device file once per tick of the coarse clock.
void deviceCheck(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(UTIL_GetMMCSDStatus());
}
BENCHMARK(deviceCheck);

QStringList extensionsOfListing()
{
    QStringList extensions;
    for (const char *name : listingNames) {
        const QString fileName = QString::fromLatin1(name);
        const qsizetype dot = fileName.lastIndexOf(u'.');
        extensions.append(dot < 0 ? QString() : fileName.mid(dot + 1));
    }
    return extensions;
}

// What classifying one name costs the registry; the per-name figure is the
// time divided by the names of the listing.
void classifyListing(benchmark::State &state)
{
    AM_MimeRegistry registry;
    const QStringList extensions = extensionsOfListing();
    for (auto _ : state) {
        for (const QString &extension : extensions) {
            for (int ask = 0; ask < 3; ++ask)
                benchmark::DoNotOptimize(registry.getAssociatedMimeType(extension));
            benchmark::DoNotOptimize(registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, extension, QString()));
        }
    }
    state.SetItemsProcessed(state.iterations() * extensions.size());
}
BENCHMARK(classifyListing);

// For comparison: asking the system's database directly, name by name.
void systemDatabaseListing(benchmark::State &state)
{
    const QMimeDatabase database;
    QStringList names;
    for (const char *name : listingNames)
        names.append(QString::fromLatin1(name));
    for (auto _ : state) {
        for (const QString &name : names)
            benchmark::DoNotOptimize(database.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name());
    }
    state.SetItemsProcessed(state.iterations() * names.size());
}
BENCHMARK(systemDatabaseListing);

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("device.ini")));
    if (!dir.isValid() || !file.open(QIODevice::WriteOnly) || file.write(device) != device.size())
        return 1;
    file.close();
    qputenv("KIVSIM_DEVICE", QFile::encodeName(file.fileName()));
    qunsetenv("KIVSIM_JOURNAL");

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
