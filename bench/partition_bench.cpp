// The partition queries that a folder listing asks for every entry, and the
// collation it sorts names with.
#include <TAMBRO_Global.h>

#include "core/partition_table.h"

#include <benchmark/benchmark.h>

namespace {

// A phone with memory, MegaSIM and card, as a scan leaves it.
void useSamplePhone()
{
    auto *table = new Tambro::PartitionTable;
    const char *mountPoints[] = {"/kivlocal/download/tambro", "/mmc/megasim1", "/mmc/mmca1"};
    for (int type = 0; type < 3; ++type) {
        Tambro::PartitionInfo entry;
        entry.deviceType = type;
        entry.setMountDir(mountPoints[type]);
        entry.setDisplayName(QStringLiteral("Name"));
        table->insert(entry);
    }
    table->renumber();
    delete Tambro::partitionTable();
    Tambro::partitionTable() = table;
    TAMBRO_Global::initMemFlag = true;
}

void partitionName(benchmark::State &state)
{
    useSamplePhone();
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::getPartiName(3));
}
BENCHMARK(partitionName);

void mountedCardPath(benchmark::State &state)
{
    useSamplePhone();
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::getMountedPath(2));
}
BENCHMARK(mountedCardPath);

void isCardMounted(benchmark::State &state)
{
    useSamplePhone();
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::isDeviceMounted(2));
}
BENCHMARK(isCardMounted);

void compareNames(benchmark::State &state)
{
    const QString first = QStringLiteral("Holiday photo 12.jpg");
    const QString second = QStringLiteral("holiday photo 2.jpg");
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::compareString(first, second));
}
BENCHMARK(compareNames);

} // namespace

BENCHMARK_MAIN();
