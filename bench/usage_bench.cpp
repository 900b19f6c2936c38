// Folder usage walks against the floor the system calls set, and the size,
// date and duration texts against Qt's own size text. The walks run over a
// generated tree of 200,000 files in 10,000 folders, warmed in the cache:
//   build/bench/usage_bench [--million] [Google Benchmark options]
// Each walk's "x_floor" counter is its time over the plain C walker's (for
// sizes) or the count-only walker's (for counts). --million also walks a
// folder of a million entries and reports how much the peak memory grew.
#include <TAMBRO_Global.h>

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int TreeFolders = 10000;
constexpr int TreeFiles = 200000;
constexpr int MaxDepth = 12;

// --- The tree ---------------------------------------------------------------

// Names of 3 to 24 characters, with the extensions of a phone's files.
QByteArray randomName(std::mt19937 &random, int serial, bool file)
{
    static const char letters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 _-";
    static const char *const extensions[] = {".jpg", ".mp3", ".3gp", ".txt", ".amr", ".png", ".mp4", ".vcf"};
    QByteArray name;
    const int length = 2 + int(random() % 16);
    for (int i = 0; i < length; ++i)
        name += letters[random() % (sizeof letters - 1)];
    name += QByteArray::number(serial);
    if (file)
        name += extensions[random() % std::size(extensions)];
    return name;
}

void makeFile(const QByteArray &path, off_t size)
{
    const int fd = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (fd < 0 || ftruncate(fd, size) != 0) // sparse: the tree costs no disk space
        qFatal("cannot make %s: %s", path.constData(), strerror(errno));
    close(fd);
}

// Each folder hangs under a random earlier one, no deeper than MaxDepth;
// each file goes into a random folder, sizes spread from bytes to megabytes.
QString generateTree(const QString &root)
{
    std::mt19937 random(20261123);
    std::vector<QByteArray> folders{QFile::encodeName(root)};
    std::vector<int> depths{0};
    mkdir(folders.front().constData(), 0755);
    for (int i = 1; i < TreeFolders; ++i) {
        size_t parent = random() % folders.size();
        while (depths[parent] >= MaxDepth)
            parent = random() % folders.size();
        folders.push_back(folders[parent] + '/' + randomName(random, i, false));
        depths.push_back(depths[parent] + 1);
        if (mkdir(folders.back().constData(), 0755) != 0)
            qFatal("cannot make %s", folders.back().constData());
    }
    std::uniform_real_distribution<double> logSize(0.0, 16.0);
    for (int i = 0; i < TreeFiles; ++i)
        makeFile(folders[random() % folders.size()] + '/' + randomName(random, i, true), off_t(std::exp(logSize(random))));
    return root;
}

QTemporaryDir &scratch()
{
    static QTemporaryDir dir;
    return dir;
}

const QString &tree()
{
    static const QString path = generateTree(scratch().filePath(QStringLiteral("tree")));
    return path;
}

// --- The floor: plain C walkers -----------------------------------------------

uint64_t cWalkSize(int fd)
{
    DIR *dir = fdopendir(fd);
    if (!dir)
        return 0;
    uint64_t sum = 0;
    while (const dirent *entry = readdir(dir)) {
        if (entry->d_type == DT_REG) {
            struct stat status;
            if (fstatat(dirfd(dir), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
                sum += uint64_t(status.st_size);
        } else if (entry->d_type == DT_DIR && strcmp(entry->d_name, ".") != 0 && strcmp(entry->d_name, "..") != 0) {
            sum += cWalkSize(openat(dirfd(dir), entry->d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        }
    }
    closedir(dir);
    return sum;
}

uint64_t cWalkCount(int fd)
{
    DIR *dir = fdopendir(fd);
    if (!dir)
        return 0;
    uint64_t count = 0;
    while (const dirent *entry = readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        if (entry->d_type == DT_REG)
            ++count;
        else if (entry->d_type == DT_DIR)
            count += 1 + cWalkCount(openat(dirfd(dir), entry->d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    }
    closedir(dir);
    return count;
}

int openTree()
{
    return open(QFile::encodeName(tree()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

uint64_t qtWalkSize()
{
    uint64_t sum = 0;
    QDirIterator it(tree(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        if (it.fileInfo().isFile() && !it.fileInfo().isSymLink())
            sum += uint64_t(it.fileInfo().size());
    }
    return sum;
}

uint64_t shell(const QString &command)
{
    QProcess process;
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().split('\t').first().trimmed().toULongLong();
}

// --- Timing -------------------------------------------------------------------

// The floors' mean times, for the other walks' ratios.
double g_sizeFloor = 0;
double g_countFloor = 0;

// Times each iteration itself, and reports the answer (to compare) and the ratio.
template<typename Walk>
void timeWalk(benchmark::State &state, Walk walk, double *floor, bool isFloor)
{
    tree();
    walk(); // warm the cache
    double seconds = 0;
    uint64_t answer = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        answer = walk();
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    const double mean = seconds / double(state.iterations());
    if (isFloor)
        *floor = mean;
    state.counters["answer"] = double(answer);
    if (*floor > 0)
        state.counters["x_floor"] = mean / *floor;
}

void registerWalks()
{
    using benchmark::RegisterBenchmark;
    auto walk = [](const char *name, auto function, double *floor, bool isFloor, int iterations) {
        RegisterBenchmark(name, [=](benchmark::State &state) { timeWalk(state, function, floor, isFloor); })
            ->Iterations(iterations)
            ->Unit(benchmark::kMillisecond);
    };
    walk("size/c_walker", [] { return cWalkSize(openTree()); }, &g_sizeFloor, true, 10);
    walk("size/getSize", [] { return uint64_t(TAMBRO_Global::getSize(tree())); }, &g_sizeFloor, false, 10);
    walk("size/du_-sb", [] { return shell("du -sb '" + tree() + "'"); }, &g_sizeFloor, false, 5);
    walk("size/QDirIterator", qtWalkSize, &g_sizeFloor, false, 5);
    walk("count/count_only_walker", [] { return cWalkCount(openTree()); }, &g_countFloor, true, 10);
    walk("count/getNum", [] {
        const TAMBRO_ITEM_COUNT count = TAMBRO_Global::getNum(tree(), true);
        return uint64_t(count.files) + count.folders;
    }, &g_countFloor, false, 10);
    walk("count/find_type_f_wc", [] { return shell("find '" + tree() + "' -type f | wc -l"); }, &g_countFloor, false, 5);
}

// --- A folder of a million entries: memory must not grow with it ---------------

long peakKiloBytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}

void resetPeak()
{
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

void millionEntries(benchmark::State &state)
{
    static const QString folder = [] {
        const QString path = scratch().filePath(QStringLiteral("million"));
        mkdir(QFile::encodeName(path).constData(), 0755);
        for (int i = 0; i < 1000000; ++i)
            makeFile(QFile::encodeName(path) + "/entry " + QByteArray::number(i), 0);
        return path;
    }();
    TAMBRO_Global::getNum(folder, true);
    resetPeak();
    const long before = peakKiloBytes();
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::getSize(folder) + TAMBRO_Global::getNum(folder, true).files);
    state.counters["peak_growth_kB"] = double(peakKiloBytes() - before);
}

// --- Formatting: ns per call --------------------------------------------------

const double Sizes[] = {0, 1023, 1024, 52000, 1048535, 3.5e6, 7.2e8, 1073741824};

template<typename Format>
void format(benchmark::State &state, Format function)
{
    size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(function(Sizes[next]));
        next = (next + 1) % std::size(Sizes);
    }
}

void formattedDataSize(benchmark::State &state)
{
    const QLocale locale;
    format(state, [&](double size) { return locale.formattedDataSize(qint64(size), 1, QLocale::DataSizeTraditionalFormat); });
}
BENCHMARK(formattedDataSize);

void getDetailViewSizeStr(benchmark::State &state)
{
    format(state, TAMBRO_Global::getDetailViewSizeStr);
}
BENCHMARK(getDetailViewSizeStr);

void uintSizeToGbMbStr(benchmark::State &state)
{
    format(state, [](double size) { return TAMBRO_Global::uintSizeToGbMbStr(size, 2); });
}
BENCHMARK(uintSizeToGbMbStr);

void getMultiSelectTitle(benchmark::State &state)
{
    format(state, [](double size) { return TAMBRO_Global::getMultiSelectTitle(size, 12); });
}
BENCHMARK(getMultiSelectTitle);

void convertDateTime(benchmark::State &state)
{
    const QDateTime when(QDate(2026, 11, 23), QTime(9, 4, 0));
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::convertDateTime(when));
}
BENCHMARK(convertDateTime);

void convertTime(benchmark::State &state)
{
    int milliseconds = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(TAMBRO_Global::convertTime(milliseconds += 997));
}
BENCHMARK(convertTime);

} // namespace

int main(int argc, char **argv)
{
    std::vector<char *> arguments;
    bool million = false;
    for (int i = 0; i < argc; ++i) {
        if (std::strcmp(argv[i], "--million") == 0)
            million = true;
        else
            arguments.push_back(argv[i]);
    }
    int count = int(arguments.size());
    QCoreApplication application(count, arguments.data()); // the library's catalogues, as in an application
    registerWalks();
    if (million)
        benchmark::RegisterBenchmark("count/million_entries", millionEntries)->Iterations(3)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
