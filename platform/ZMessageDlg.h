// A modal notice: a title, a text and a type, shown through ZPopup::exec().
#pragma once

#include "ZPopup.h"

class KIVPLATFORM_EXPORT ZMessageDlg : public ZPopup
{
    Q_OBJECT
public:
    ZMessageDlg(const QString &title, const QString &text, int type, int timeout,
                QWidget *parent = nullptr, const char *name = nullptr, bool modal = true,
                Qt::WindowFlags flags = {}, int display = 0);
    ~ZMessageDlg() override;

protected:
    QString popupTitle() const override;
    QString popupText() const override;
    int popupType() const override;

private:
    void showEvent(QShowEvent *event) override;

    QString m_title;
    QString m_text;
    int m_type;
    int m_timeout; // seconds until the notice closes itself; 0 waits for the user
};
