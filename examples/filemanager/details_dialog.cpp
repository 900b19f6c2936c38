#include "details_dialog.h"

#include <TAMBRO_Global.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>

namespace {

void addLine(QFormLayout *form, const QString &label, const QString &value)
{
    auto *text = new QLabel(value);
    text->setObjectName(label);
    text->setWordWrap(true);
    form->addRow(label, text);
}

QString storageSpace(const QString &path)
{
    double available = 0;
    double total = 0;
    if (!TAMBRO_Global::getDiskSize(path, available, total))
        return QObject::tr("unknown");
    return QObject::tr("%1 free of %2").arg(TAMBRO_Global::uintSizeToGbMbStr(available, 1),
                                            TAMBRO_Global::uintSizeToGbMbStr(total, 1));
}

} // namespace

DetailsDialog::DetailsDialog(const QString &path, const QString &shownName, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(shownName);
    auto *form = new QFormLayout(this);
    const QFileInfo info(path);
    addLine(form, tr("Name"), shownName);
    addLine(form, tr("Size"), TAMBRO_Global::getDetailViewSizeStr(double(TAMBRO_Global::getSize(path))));
    if (info.isDir()) {
        const TAMBRO_ITEM_COUNT count = TAMBRO_Global::getNum(path, true);
        addLine(form, tr("Contains"), tr("%1 files, %2 folders").arg(count.files).arg(count.folders));
    }
    addLine(form, tr("Modified"), TAMBRO_Global::convertDateTime(info.lastModified()));
    addLine(form, tr("Read-only"), TAMBRO_Global::isReadOnly(path) ? tr("Yes") : tr("No"));
    addLine(form, tr("Storage"), storageSpace(path));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    form->addRow(buttons);
}
