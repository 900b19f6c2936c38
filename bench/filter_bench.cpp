// What narrowing a list and naming a file cost: a filter's match over a
// listing's 100,000 names, for an extension list of five items and for the
// ring tones, and the file name validator per keystroke.
#include <TAMBRO_Char_Validator.h>
#include <TAMBRO_File_Filter.h>

#include "in_turn.h"
#include "listing_names.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace {

constexpr int NameCount = 100000;

// A fifth of the names among the preloaded ring tones, the rest the user's.
const std::vector<QString> &paths()
{
    static const std::vector<QString> list = [] {
        std::vector<QString> result = listingNames(NameCount);
        for (size_t i = 0; i < result.size(); ++i)
            result[i].prepend(i % 5 ? QStringLiteral("/kivlocal/download/tambro/audio/")
                                    : QStringLiteral("/usr/data_resource/ringtones/"));
        return result;
    }();
    return list;
}

void matchNames(benchmark::State &state, const TAMBRO_File_Filter &filter)
{
    askInTurn(state, paths(), [&](const QString &path) { benchmark::DoNotOptimize(filter.match(path)); });
}

void extensionList(benchmark::State &state)
{
    matchNames(state, TAMBRO_File_Filter(QStringList{"*.jpg", "*.png", "*.gif", "*.bmp", "*.3gp"}, false, true));
}
BENCHMARK(extensionList);

void ringTones(benchmark::State &state)
{
    matchNames(state, TAMBRO_File_Filter(TAMBRO_FILTER_RING_TONES, false, true));
}
BENCHMARK(ringTones);

// One keystroke: the text typed so far with the cursor after its last character.
void keystroke(benchmark::State &state)
{
    const TAMBRO_Char_Validator validator;
    const QString typed = QStringLiteral("Holiday photos 2026: beach?");
    int length = 1;
    for (auto _ : state) {
        QString text = typed.left(length);
        int position = length;
        benchmark::DoNotOptimize(validator.validate(text, position));
        length = length == typed.size() ? 1 : length + 1;
    }
}
BENCHMARK(keystroke);

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir folder;
    useBenchmarkDevice(folder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv); // the ring tones set up the icons too
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
