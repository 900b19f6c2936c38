// What the file manager does with files, each through the library: naming
// (guarded keystroke by keystroke), opening with the handling application,
// and sending to a recipient.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

// Asks for a file or folder name in a field that refuses the characters a
// name may not hold; empty when cancelled.
QString askName(QWidget *parent, const QString &title, const QString &name);

// Opens the file with the application that handles it; the phone shows its
// own notice when none can.
void openFile(QWidget *parent, const QString &path);

// Why a recipient is not plausible; empty when it could be a phone number or
// an e-mail address.
QString recipientProblem(const QString &recipient);

// Hands the files to the phone's sharing service: e-mail for an address
// where the phone offers e-mail, Bluetooth otherwise. The service's result.
int sendFiles(const QStringList &paths, const QString &recipient);
