// Guards the text field in which the user names a file or folder: refuses
// each keystroke of a character that a file name may not hold, and a dot
// typed first. Only the character before the cursor is looked at: text
// pasted in one piece is not checked, nor is any length.
#pragma once

#include "kivtambro_export.h"

#include <QValidator>

class QWidget;

class KIVTAMBRO_EXPORT TAMBRO_Char_Validator : public QValidator
{
    Q_OBJECT

public:
    explicit TAMBRO_Char_Validator(QWidget *parent = nullptr, const char *name = nullptr);

    // Invalid when the character before position is one of
    // ; * ? @ # & = < > / | : " \ € £ ¤ § ¿, a carriage return or a line
    // feed, or a "." at position 1; else Acceptable (also for a position of
    // 0 or less, or past the text). Changes neither text nor position.
    State validate(QString &text, int &position) const override;
};
