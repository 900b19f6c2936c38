// The folder structure file and the paths of the fixed folder tree: the
// process-wide state behind TAMBRO_FixedFolder.
#pragma once

#include "TAMBRO_FixedFolder.h"

#include "structurefile/folder_structure_file.h"

#include <QString>

#include <optional>

class ZConfig;

namespace Tambro {

// TAMBRO_DATA_PATH without surrounding white space and trailing slashes;
// null when unset.
QString rootPathFromEnvironment();

// The opened folder structure file, after initialize() has run once.
const ZConfig &folderStructure();

// Whether a path given relative to a folder stays inside it once "." and
// ".." are resolved: it begins with "/" and no ".." climbs above its start.
bool staysInside(const QString &relativePath);
// The folder that a root-relative path of the structure file names: the root
// followed by the path exactly as given (blanks that surround a value in the
// file are part of the folder's name), the root itself for an empty path.
// Nothing when the path does not stay inside the root: the file names no
// folder outside it, so none is ever made, moved or shown there.
std::optional<QString> fixedFolderPath(const QString &relativePath);
// The path without its first root-length characters when the root occurs
// in it anywhere (not necessarily at its start); null otherwise.
QString relativeFolderPath(const QString &absolutePath);
// Creates every missing folder of the path from the root on, each handed to
// the phone's file owner. Failures are silently left as they are.
void makeFolderPath(const QString &path);
// The structure file's group for a real folder: preloaded content in tag
// form, the root's, else the root-relative path; nothing when nothing is
// left of the path after the root.
std::optional<QString> groupOfFolder(const QString &path);
// The structure's entry, or the fallback when it is missing or empty.
QString entryOr(const QString &group, const char *key, const QString &fallback);

} // namespace Tambro
