// The file manager's one window, at the phone's screen size: the location
// line, the folder as a list or as a grid of big icons, and the actions of
// the phone's menu.
#pragma once

#include "folder_model.h"

#include <TAMBRO_File_Filter.h>

#include <QMainWindow>

#include <optional>

class QAction;
class QLabel;
class QListView;
class QStackedWidget;
class QTreeView;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    // False when the folder cannot be read; the window stays where it was.
    bool openFolder(const QString &folder);
    FolderModel *model() const { return m_model; }
    QTreeView *listView() const { return m_list; }
    QListView *gridView() const { return m_grid; }
    QLabel *location() const { return m_location; }
    // The paths of the selected rows, in row order.
    QStringList selectedPaths() const;

public slots:
    void back();
    void refresh();
    void showGrid(bool grid);
    void showDetails();
    void newFolder();
    void renameSelected();
    void deleteSelected();
    void sendSelected();

private:
    void addMenus();
    void activate(const QModelIndex &index);
    void updateTitle();
    void setFilter(std::optional<TAMBRO_File_Filter> filter);
    int currentRow() const;
    // Fixed folders and storages keep their names and cannot be deleted.
    bool mayChange(const QString &path);
    void warn(const QString &text);

    FolderModel *m_model;
    QLabel *m_location;
    QStackedWidget *m_views;
    QTreeView *m_list;
    QListView *m_grid;
    std::optional<TAMBRO_File_Filter> m_filter;
};
