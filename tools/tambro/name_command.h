#pragma once

#include "request.h"

#include <QTextStream>

// Types each text into the file name validator one keystroke at a time, as a
// text field would, and shows the refused keystrokes and the resulting name.
int runNameCommand(QTextStream &out, const Request &request);

// Tells for each text whether it could be a phone number, an e-mail address,
// both or neither.
int runRecipientCommand(QTextStream &out, const Request &request);
