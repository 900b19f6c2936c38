// From asking for a folder to its complete, sorted first screen of rows
// (icons, names and sizes of the rows the phone's screen shows): the example
// file manager's model against QFileSystemModel + QFileIconProvider +
// QSortFilterProxyModel, for folders of 100, 10,000 and 100,000 entries of
// a listing's mix; and the parts of the time (reading, collation). Runs on
// the phone, so that the registry and the icons are the phone's:
//   build/bin/kivsim -- build/examples/filemanager/bench/filemanager_bench
#include "folder_model.h"

#include "listing_names.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QApplication>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QSignalSpy>
#include <QSortFilterProxyModel>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <map>
#include <unistd.h>

namespace {

constexpr int ScreenRows = 14; // 320 pixels of 22-pixel rows under the location line

QTemporaryDir &scratch()
{
    static QTemporaryDir dir;
    return dir;
}

// A folder of that many entries: a listing's names, one in twenty a folder.
const QString &folderOf(int entries)
{
    static std::map<int, QString> made;
    QString &path = made[entries];
    if (path.isEmpty()) {
        path = scratch().filePath(QString::number(entries));
        QDir().mkpath(path);
        const std::vector<QString> names = listingNames(entries);
        for (int i = 0; i < entries; ++i) {
            const QByteArray file = QFile::encodeName(path + u'/' + names[size_t(i)]);
            if (i % 20 == 0)
                mkdir(file.constData(), 0755);
            else
                close(open(file.constData(), O_WRONLY | O_CREAT, 0644));
        }
    }
    return path;
}

// What a view asks of each row it draws.
void drawFirstScreen(const QAbstractItemModel &model, const QModelIndex &root, int sizeColumn)
{
    for (int row = 0; row < std::min(ScreenRows, model.rowCount(root)); ++row) {
        benchmark::DoNotOptimize(model.index(row, 0, root).data(Qt::DisplayRole));
        benchmark::DoNotOptimize(model.index(row, 0, root).data(Qt::DecorationRole));
        benchmark::DoNotOptimize(model.index(row, sizeColumn, root).data(Qt::DisplayRole));
    }
}

void fileManagerModel(benchmark::State &state)
{
    const QString &folder = folderOf(int(state.range(0)));
    for (auto _ : state) {
        FolderModel model;
        model.setFolder(folder);
        drawFirstScreen(model, {}, FolderModel::SizeColumn);
    }
}

void qtFileSystemModel(benchmark::State &state)
{
    const QString &folder = folderOf(int(state.range(0)));
    QFileIconProvider icons;
    for (auto _ : state) {
        QFileSystemModel model;
        model.setIconProvider(&icons);
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(&model);
        QSignalSpy loaded(&model, &QFileSystemModel::directoryLoaded);
        const QModelIndex root = model.setRootPath(folder);
        if (!loaded.wait(60000))
            state.SkipWithError("the folder was not loaded");
        sorted.sort(0);
        drawFirstScreen(sorted, sorted.mapFromSource(root), 1);
    }
}

// The parts: the folder read into rows, nothing put in order or worked out.
void readOnly(benchmark::State &state)
{
    const QString &folder = folderOf(int(state.range(0)));
    for (auto _ : state) {
        FolderModel model;
        model.setFolder(folder);
    }
}

// The names sorted by the phone's collation alone, as a whole sort would.
void collationSort(benchmark::State &state)
{
    const std::vector<QString> names = listingNames(int(state.range(0)));
    for (auto _ : state) {
        std::vector<QString> sorted = names;
        std::sort(sorted.begin(), sorted.end(),
                  [](const QString &a, const QString &b) { return TAMBRO_Global::compareString(a, b) < 0; });
        benchmark::DoNotOptimize(sorted.data());
    }
}

void registerAll()
{
    const std::pair<const char *, void (*)(benchmark::State &)> benchmarks[] = {
        // Qt's model last: its gatherer threads may still be busy after it.
        {"firstScreen/fileManagerModel", fileManagerModel}, {"parts/readFolder", readOnly},
        {"parts/collationSort", collationSort}, {"firstScreen/QFileSystemModel", qtFileSystemModel}};
    for (const auto &[name, function] : benchmarks) {
        benchmark::RegisterBenchmark(name, function)
            ->Arg(100)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->MinTime(1.0);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    TAMBRO_Global::instance();
    TAMBRO_FixedFolder::initialize();
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
