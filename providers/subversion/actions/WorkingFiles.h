#pragma once

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// Whether there is something of that name on the disk.
[[nodiscard]] bool isOnDisk(const std::string& file, apr_pool_t* pool);
[[nodiscard]] FileNames missingOnes(const FileNames& files);

/// Puts the files back as the working copy's revision has them; local changes are lost. Schedules
/// are dropped too; a file scheduled for addition stays on the disk.
void restore(Project& project, const FileNames& files);

/// Drops schedules and leaves the bytes on the disk alone.
void dropSchedules(Project& project, const FileNames& files);

/// Brings files to the newest version, local changes merged. Directories that the working copy
/// lacks are made, unversioned files in the way become local changes.
void update(Project& project, const FileNames& files, svn_depth_t depth);

/// Whether a program has moved the working file to its other name, "_temp" at the end, to see the
/// store's newest version in its place. It will move it back, so that the working copy has to go on
/// telling the revision of that file.
[[nodiscard]] bool isSetAside(const std::string& file);

/// Puts the store's newest version where the file was. The working copy does not notice.
void exportNewest(Project& project, const std::string& file);

/// The controlled files below directories.
FileNames filesBelow(Project& project, const FileNames& directories, bool isRecursive);

}  // namespace veldra::subversion
