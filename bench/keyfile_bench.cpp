// Reading configuration files with very many sections or keys, then looking
// every one of them up: both must grow linearly with the file.
#include "keyfile.h"

#include <benchmark/benchmark.h>

namespace {

// "[s0]\nk=v\n[s1]\nk=v\n..." or "[s]\nk0=v\nk1=v\n...".
QByteArray manySections(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += "[s" + QByteArray::number(i) + "]\nk=v\n";
    return text;
}

QByteArray manyKeys(int count)
{
    QByteArray text = "[s]\n";
    for (int i = 0; i < count; ++i)
        text += 'k' + QByteArray::number(i) + "=v\n";
    return text;
}

void readManySections(benchmark::State &state)
{
    const int count = int(state.range(0));
    const QByteArray text = manySections(count);
    for (auto _ : state) {
        const KeyFile file = KeyFile::parse(text, QStringLiteral("bench"));
        for (int i = 0; i < count; ++i)
            benchmark::DoNotOptimize(file.value(u's' + QString::number(i), QStringLiteral("k")));
    }
    state.SetComplexityN(count);
}
BENCHMARK(readManySections)->RangeMultiplier(8)->Range(1 << 8, 1 << 20)->Complexity(benchmark::oN);

void readManyKeys(benchmark::State &state)
{
    const int count = int(state.range(0));
    const QByteArray text = manyKeys(count);
    for (auto _ : state) {
        const KeyFile file = KeyFile::parse(text, QStringLiteral("bench"));
        for (int i = 0; i < count; ++i)
            benchmark::DoNotOptimize(file.value(QStringLiteral("s"), u'k' + QString::number(i)));
    }
    state.SetComplexityN(count);
}
BENCHMARK(readManyKeys)->RangeMultiplier(8)->Range(1 << 8, 1 << 20)->Complexity(benchmark::oN);

} // namespace

BENCHMARK_MAIN();
