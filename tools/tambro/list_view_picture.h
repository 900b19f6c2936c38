// The phone's list view of a folder, drawn into a picture.
#pragma once

#include <QImage>

class TAMBRO_ListView;

// A screen of the phone's size: the folder's name as title, then one row per
// row with its small icon, shown name and size, as many as fit.
QImage drawListView(const TAMBRO_ListView &listing);
