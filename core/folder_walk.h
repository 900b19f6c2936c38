// Depth-first walks of a folder tree at the speed of the system calls: each
// folder read once through its descriptor, entries classified by the type
// the listing reports, no path built and no name decoded on the way.
#pragma once

#include "TAMBRO_Global.h"

namespace Tambro {

// Folders deeper than this (as TAMBRO_Global::getFolderLevel counts) are not
// entered: the only bound a walk has on a hostile tree.
constexpr int MaxWalkLevel = 32;

// A descriptor of the folder at path, following a link there as opening a
// folder by name does; -1 when it is no readable folder.
int openFolder(const QString &path);

// The level of the folder at path, as getFolderLevel counts its absolute,
// cleaned path; a subfolder is one level deeper.
int folderLevel(const QString &path);

// The bytes of the regular files in the tree of the folder open at
// folderFd, which is at level; the descriptor is closed.
quint64 treeSize(int folderFd, int level);

// The visible files and folders of that tree, as getNum counts them; the
// descriptor is closed.
TAMBRO_ITEM_COUNT treeCount(int folderFd, int level, bool recursive);

} // namespace Tambro
