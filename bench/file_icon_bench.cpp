// Classifying the names of a folder listing: the library's icon choice
// against a bare QMimeDatabase look-up and GIO's guess, in one process so
// that the figures compare. Also the start-up cost of the standard icons and
// the cost of a cached icon.
//
// Built twice: file_icon_bench asks the simulated phone's registry (with the
// system's MIME database behind it); file_icon_bench_fixed_registry asks a
// registry that answers from a fixed table (fixed_registry.cpp), so that its
// libraryIconChoice is the library's own share. The difference is the
// simulated registry's. Both answer as BenchmarkAnswers says, checked at start.
// file_icon_bench runs on whichever platform the library path gives it
// (bench/CMakeLists.txt says how); on the host platform the registry answers
// from this machine's MIME database and default applications instead, so
// that check is left out there.
// GLib first: Qt's keyword macros would break its headers.
#ifdef KIVTAMBRO_BENCH_GIO
#include <gio/gio.h>
#endif

#include <AM_MimeRegistry.h>
#include <TAMBRO_Global.h>

#include "in_turn.h"
#include "listing_names.h"
#include "types/icon_cache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeDatabase>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <dlfcn.h>
#include <link.h>

#include <vector>

namespace {

constexpr int NameCount = 100000;

const std::vector<QString> &names()
{
    static const std::vector<QString> list = listingNames(NameCount);
    return list;
}

void libraryIconChoice(benchmark::State &state)
{
    askInTurn(state, names(), [](const QString &name) {
        benchmark::DoNotOptimize(TAMBRO_Global::getFileIconByType(name, false));
    });
}
BENCHMARK(libraryIconChoice);

void bareQMimeDatabase(benchmark::State &state)
{
    const QMimeDatabase database;
    askInTurn(state, names(), [&](const QString &name) {
        benchmark::DoNotOptimize(database.mimeTypeForFile(name, QMimeDatabase::MatchExtension));
    });
}
BENCHMARK(bareQMimeDatabase);

#ifdef KIVTAMBRO_BENCH_GIO
void gioContentTypeGuess(benchmark::State &state)
{
    std::vector<QByteArray> utf8;
    for (const QString &name : names())
        utf8.push_back(name.toUtf8());
    askInTurn(state, utf8, [](const QByteArray &name) {
        gboolean uncertain = false;
        gchar *type = g_content_type_guess(name.constData(), nullptr, 0, &uncertain);
        benchmark::DoNotOptimize(type);
        g_free(type);
    });
}
BENCHMARK(gioContentTypeGuess);
#endif

void standardIconsAtStartUp(benchmark::State &state)
{
    for (auto _ : state)
        Tambro::preloadIcons();
}
BENCHMARK(standardIconsAtStartUp)->Unit(benchmark::kMillisecond);

// The context's whole start-up: the partition scan and the standard icons.
void contextInitialisation(benchmark::State &state)
{
    for (auto _ : state) {
        TAMBRO_Global::initMemFlag = false;
        TAMBRO_Global::initMem(0);
    }
}
BENCHMARK(contextInitialisation)->Unit(benchmark::kMillisecond);

void cachedIcon(benchmark::State &state)
{
    const QString name = QStringLiteral("fm_audio_small.gif");
    TAMBRO_Global::getIcon(name);
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::getIcon(name));
}
BENCHMARK(cachedIcon);

// The platform library the program runs on, as the library path chose it.
QString platformFile()
{
    void *platform = dlopen("libkivtambro-platform.so.1", RTLD_LAZY | RTLD_NOLOAD);
    link_map *map = nullptr;
    const QString file = platform && dlinfo(platform, RTLD_DI_LINKMAP, &map) == 0 ? QFile::decodeName(map->l_name)
                                                                                  : QString();
    if (platform)
        dlclose(platform);
    return file;
}

// The registry answers as the fixed table does, so that both builds do the
// same work; the host platform's answers are this machine's.
void checkRegistryAnswers()
{
    const QString platform = platformFile();
    benchmark::AddCustomContext("platform", platform.toStdString());
    if (QFileInfo(platform).absoluteDir().dirName() == QLatin1String("host"))
        return;
    AM_MimeRegistry registry;
    for (const RegistryAnswer &answer : BenchmarkAnswers) {
        const QString extension = QString::fromLatin1(answer.extension);
        if (registry.getAssociatedMimeType(extension) != QLatin1String(answer.type)
            || registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, extension, QString())
                != QLatin1String(answer.handler))
            qFatal("the registry answers otherwise about \"%s\" than BenchmarkAnswers", answer.extension);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir folder;
    useBenchmarkDevice(folder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv); // pictures need one
    checkRegistryAnswers();

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
