// The details of a file or folder: size, counts, date, whether it may be
// written, and the space of the storage that holds it.
#pragma once

#include <QDialog>

class DetailsDialog : public QDialog
{
    Q_OBJECT

public:
    DetailsDialog(const QString &path, const QString &shownName, QWidget *parent = nullptr);
};
