#include "file_actions.h"

#include <TAMBRO_Char_Validator.h>
#include <TAMBRO_DYNAMIC_Interface.h>
#include <TAMBRO_FileHandle.h>
#include <TAMBRO_Global.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QVBoxLayout>

QString askName(QWidget *parent, const QString &title, const QString &name)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto *field = new QLineEdit(name, &dialog);
    field->setObjectName(QStringLiteral("nameField"));
    field->setValidator(new TAMBRO_Char_Validator(field, "nameValidator"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(field);
    layout->addWidget(buttons);
    return dialog.exec() == QDialog::Accepted ? field->text().trimmed() : QString();
}

void openFile(QWidget *parent, const QString &path)
{
    const QFileInfo file(path);
    TAMBRO_FileHandle handle(path, file.suffix().toLower(), file.absolutePath(), parent, 0, true);
    handle.Handle();
}

QString recipientProblem(const QString &recipient)
{
    if (recipient.isEmpty())
        return QObject::tr("Enter a phone number or an e-mail address.");
    if (!TAMBRO_Global::isMobile(recipient) && !TAMBRO_Global::isEmail(recipient))
        return QObject::tr("\"%1\" is neither a phone number nor an e-mail address.").arg(recipient);
    return QString();
}

int sendFiles(const QStringList &paths, const QString &recipient)
{
    QStringList files = paths;
    TAMBRO_DYNAMIC_Interface services;
    if (TAMBRO_Global::isEmail(recipient) && TAMBRO_Global::getEmailFlexFlag())
        return services.Email_ShareFiles(files);
    return services.BlueTooth_ShareFiles(files);
}
