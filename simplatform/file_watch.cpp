#include "file_watch.h"

#include <QByteArrayView>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <thread>

#include <pthread.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace KivSim {

namespace {

constexpr uint32_t nameEvents =
    IN_CLOSE_WRITE | IN_MODIFY | IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
// The folder itself deleted, moved or unmounted: its watch no longer shows the file.
constexpr uint32_t folderGoneEvents = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;

// A forked child shares its parent's inotify queue, and whichever of the two
// reads an event takes it from the other: the child opens a queue of its own.
std::atomic_int forkCount{0};

int forks()
{
    static const bool counting = ::pthread_atfork(nullptr, nullptr, [] {
        forkCount.fetch_add(1, std::memory_order_relaxed);
    }) == 0;
    Q_UNUSED(counting);
    return forkCount.load(std::memory_order_relaxed);
}

// Not for a symbolic link, whose target changes elsewhere, nor while the file
// is missing, as its folder too may then be replaced by one not watched.
bool folderShowsChanges(const QByteArray &path)
{
    struct stat info;
    return ::lstat(path.constData(), &info) == 0 && !S_ISLNK(info.st_mode);
}

} // namespace

FileWatch::~FileWatch()
{
    if (m_queue >= 0)
        ::close(m_queue);
}

void FileWatch::watch(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    m_path = path;
    m_folder = slash < 0 ? QByteArray(".") : path.left(std::max<qsizetype>(slash, 1));
    m_name = path.mid(slash + 1);
    m_folderShowsChanges = folderShowsChanges(path);
    addWatch(); // anew: the folder at that path may be another one by now
}

bool FileWatch::mayHaveChanged()
{
    if (m_path.isEmpty())
        return false; // no file named
    if (forkedSinceWatching()) {
        ::close(m_queue);
        m_queue = -1;
        m_watch = -1;
    }
    if (!m_folderShowsChanges)
        return true;
    if (m_watch < 0) {
        addWatch(); // what happened before it is not in its queue
        return true;
    }
    const Ticks start = TickClock::now();
    const bool due = lookIsDue(start);
    m_previousCaller = std::this_thread::get_id();
    m_previousCallEnd = start;
    if (!due)
        return false;
    const bool changed = eventsConcernFile();
    const Ticks end = TickClock::now();
    m_cheapestLook = std::min(m_cheapestLook, end - start);
    m_lastLook = m_previousCallEnd = end;
    return changed;
}

bool FileWatch::lookIsDue(Ticks now) const
{
    // Two calls of one thread closer together than the cheapest look leave it
    // no time for a system call in between, so for no change of its own. A
    // count that seems to go back (unsigned, it wraps) makes a look due.
    const bool callerMayHaveWritten = m_previousCaller != std::this_thread::get_id()
        || now - m_previousCallEnd >= m_cheapestLook;
    return callerMayHaveWritten || now - m_lastLook >= maxStaleness;
}

bool FileWatch::openQueue()
{
    if (m_queue < 0) {
        m_forks = forks();
        m_queue = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    }
    return m_queue >= 0;
}

void FileWatch::addWatch()
{
    const int previous = m_watch;
    m_watch = -1;
    if (!m_name.isEmpty() && openQueue()) {
        m_watch = ::inotify_add_watch(m_queue, m_folder.constData(),
                                      nameEvents | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR);
    }
    // The same folder keeps its watch; another folder's is dropped (its last
    // event, IN_IGNORED, still comes, but for a watch no longer ours).
    if (previous >= 0 && previous != m_watch)
        ::inotify_rm_watch(m_queue, previous);
}

bool FileWatch::concerns(const inotify_event &event)
{
    if (event.mask & IN_Q_OVERFLOW)
        return true; // events were lost
    if (event.wd != m_watch)
        return false;
    if (event.mask & folderGoneEvents)
        return true; // the file is gone too; reading it again watches anew
    // The name is padded with NULs up to len.
    return event.len > 0 && m_name == QByteArrayView(static_cast<const char *>(event.name));
}

bool FileWatch::eventsConcernFile()
{
    alignas(inotify_event) char buffer[4096];
    bool concerned = false;
    for (;;) {
        const ssize_t size = ::read(m_queue, buffer, sizeof buffer);
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0) // EAGAIN: the queue is empty; any other error: cannot tell
            return concerned || (size < 0 && errno != EAGAIN);
        for (ssize_t at = 0; at < size;) {
            const auto &event = *reinterpret_cast<const inotify_event *>(buffer + at);
            concerned = concerns(event) || concerned;
            at += ssize_t(sizeof(inotify_event) + event.len);
        }
    }
}

bool FileWatch::forkedSinceWatching() const
{
    return m_queue >= 0 && m_forks != forks();
}

} // namespace KivSim
