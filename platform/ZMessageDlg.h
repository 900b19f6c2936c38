// A modal notice: a title, a text and a type, shown through ZPopup::exec().
#pragma once

#include "ZPopup.h"

#include <QString>

class KIVPLATFORM_EXPORT ZMessageDlg : public ZPopup
{
    Q_OBJECT
public:
    // timeout: seconds until the notice closes itself; 0 waits for the user.
    // display: which of the phone's displays shows it.
    ZMessageDlg(const QString &title, const QString &text, int type, int timeout,
                QWidget *parent = nullptr, const char *name = nullptr, bool modal = true,
                Qt::WindowFlags flags = {}, int display = 0);
    ~ZMessageDlg() override;
};
