// Modal pop-up dialogs of the phone's user interface.
#pragma once

#include "platform_export.h"

#include <QDialog>
#include <QPixmap>
#include <QString>

class KIVPLATFORM_EXPORT ZPopup : public QDialog
{
    Q_OBJECT
public:
    explicit ZPopup(QWidget *parent = nullptr, const char *name = nullptr, bool modal = true,
                    Qt::WindowFlags flags = {});
    ~ZPopup() override;

    void setTitleIcon(const QPixmap &icon);
    // Runs the dialog. Without a real window system it returns at once.
    int exec() override;

protected:
    virtual QString popupTitle() const;
    virtual QString popupText() const;
    virtual int popupType() const;

    QPixmap m_titleIcon;

private:
    void buildContents();
    bool m_contentsBuilt = false;
};
