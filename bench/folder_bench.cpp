// The questions a list view asks for every folder row: its icons and name
// (getFolderRes) and the name it is listed under (getShortName), for a
// listing's mix of fixed folders, card folders and ordinary folders; and the
// location line of a folder six levels below the root. Runs inside kivsim,
// on the sample phone:
//   build/bin/kivsim -- build/bench/folder_bench
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QCoreApplication>
#include <QDir>

#include "in_turn.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int FolderCount = 10000;

// A tenth fixed folders, three tenths on the card, the rest ordinary folders
// in the phone memory; all made on disk, as a listing finds them.
const std::vector<QString> &folders()
{
    static const std::vector<QString> list = [] {
        const QString root = TAMBRO_FixedFolder::m_sFMRootPath;
        const QStringList fixed = {root + "/picture", root + "/audio", root + "/video", root + "/voice records",
                                   root + "/documents", root + "/picture/camera", "/usr/data_resource/pic"};
        std::vector<QString> result;
        for (int i = 0; i < FolderCount; ++i) {
            QString path;
            if (i % 10 == 0)
                path = fixed.at(i / 10 % fixed.size());
            else if (i % 10 < 4)
                path = QStringLiteral("/mmc/mmca1/DCIM/folder %1").arg(i);
            else
                path = root + QStringLiteral("/others/folder %1").arg(i);
            QDir().mkpath(path);
            result.push_back(path);
        }
        return result;
    }();
    return list;
}

void folderRes(benchmark::State &state)
{
    askInTurn(state, folders(), [](const QString &path) {
        _TAMBRO_FOLDER_RES res;
        TAMBRO_Global::getFolderRes(path, res, false);
        benchmark::DoNotOptimize(res);
    });
}
BENCHMARK(folderRes);

void shortName(benchmark::State &state)
{
    askInTurn(state, folders(), [](const QString &path) { benchmark::DoNotOptimize(TAMBRO_Global::getShortName(path)); });
}
BENCHMARK(shortName);

void displayPathSixLevelsDown(benchmark::State &state)
{
    const QString path = TAMBRO_FixedFolder::m_sFMRootPath + "/picture/camera/2026/11/22/raw";
    QDir().mkpath(path);
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::getDisplayPathName(path));
}
BENCHMARK(displayPathSixLevelsDown);

} // namespace

int main(int argc, char **argv)
{
    if (TAMBRO_FixedFolder::m_sFMRootPath.isEmpty()) {
        fprintf(stderr, "folder_bench: run it inside kivsim (TAMBRO_DATA_PATH is not set)\n");
        return 1;
    }
    QCoreApplication app(argc, argv); // the library's catalogues, as in an application
    TAMBRO_FixedFolder::initialize();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
