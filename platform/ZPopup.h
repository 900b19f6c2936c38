// Modal pop-up dialogs of the phone's user interface.
#pragma once

#include "platform_export.h"

#include <QDialog>
#include <QPixmap>

#include <memory>

class KIVPLATFORM_EXPORT ZPopup : public QDialog
{
    Q_OBJECT
public:
    explicit ZPopup(QWidget *parent = nullptr, const char *name = nullptr, bool modal = true,
                    Qt::WindowFlags flags = {});
    ~ZPopup() override;

    void setTitleIcon(const QPixmap &icon);
    // Shows the dialog and waits until it is closed.
    int exec() override;

protected:
    struct Data;
    std::unique_ptr<Data> d;
};
