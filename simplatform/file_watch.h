// Tells, cheaply enough to ask on every platform call, whether a file may have
// changed since it was last read.
//
// The file's folder is watched with inotify for anything that happens to the
// file's name: written (also through a file kept open), closed after writing,
// created, renamed, deleted, its times or mode changed. Reading the event
// queue is a system call of about 300 ns, more than the look-ups it guards,
// so it is skipped when nothing can have happened since the last call:
//
//   - The same thread calling again sooner than the cheapest read of the
//     queue took cannot have changed the file in between: that takes at least
//     one system call that writes it, longer than one that finds the queue
//     empty. So a change made before a call is always seen by that call.
//   - A change made meanwhile by another thread or process is seen within
//     maxStaleness, even by a thread that calls without a break.
//
// Where the watch cannot tell, the answer is always "may have changed", and
// the caller compares the file's stamp (stat) on every call: when the file is
// a symbolic link (its target changes elsewhere), while it is missing (its
// folder may be replaced meanwhile by one not watched), and when inotify
// cannot be had. A symbolic link among the path's folders is followed once,
// when the file is read. A forked child makes a queue of its own, so as not
// to take its parent's events.
//
// Not thread-safe: its owner makes one call at a time.
#pragma once

#include "tick_clock.h"

#include <QByteArray>

#include <thread>

struct inotify_event;

namespace KivSim {

class FileWatch
{
public:
    // The longest that a change made by another thread or process can go
    // unseen by a thread that calls without a break: a millisecond or less.
    static constexpr TickClock::Ticks maxStaleness = TickClock::ticksPerMillisecondAtLeast;

    FileWatch() = default;
    ~FileWatch();
    FileWatch(const FileWatch &) = delete;
    FileWatch &operator=(const FileWatch &) = delete;

    // Watches the file at path from now on; call it before each read of the
    // file. An empty path names no file, which never changes.
    void watch(const QByteArray &path);
    // False when, by the rules above, the file has not changed since watch()
    // or since the last call that answered true.
    bool mayHaveChanged();

private:
    using Ticks = TickClock::Ticks;

    bool lookIsDue(Ticks now) const;
    bool openQueue();
    void addWatch();
    bool eventsConcernFile();
    bool concerns(const inotify_event &event);
    bool forkedSinceWatching() const;

    int m_queue = -1; // the inotify instance
    int m_watch = -1; // the watch of the folder
    QByteArray m_path;
    QByteArray m_folder;
    QByteArray m_name;
    bool m_folderShowsChanges = false;
    int m_forks = 0; // fork count when the queue was opened
    Ticks m_lastLook = 0;
    Ticks m_cheapestLook = ~Ticks(0);
    std::thread::id m_previousCaller;
    Ticks m_previousCallEnd = 0; // when that call was done here
};

} // namespace KivSim
