// The phone's list view of a folder, drawn into a picture.
#pragma once

#include "folder_listing.h"

#include <QImage>

// A screen of the phone's size: the folder's name as title, then one row per
// entry with its small icon and display name, as many as fit.
QImage drawListView(const FolderListing &listing);
