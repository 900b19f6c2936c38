/// \file
/// Guards the text field in which the user names a file or folder: refuses
/// each keystroke of a character that a file name may not hold, and a dot
/// typed first. Only the character before the cursor is looked at: text
/// pasted in one piece is not checked, nor is any length.
#pragma once

#include "kivtambro_export.h"

#include <QValidator>

class QWidget;

/// The validator of a file or folder name field, set on the field with
/// QLineEdit::setValidator(). It checks one keystroke at a time, as the phone
/// does: a name pasted or set whole is not checked, so the application checks
/// a name again before it renames or makes anything.
class KIVTAMBRO_EXPORT TAMBRO_Char_Validator : public QValidator
{
    Q_OBJECT

public:
    /// A validator owned by parent, as any QObject; name, when not null,
    /// becomes its object name.
    explicit TAMBRO_Char_Validator(QWidget *parent = nullptr, const char *name = nullptr);

    /// Invalid when the character before position is one of
    /// ; * ? \@ \# \& = \< \> / | : \" \\ € £ ¤ § ¿<!-- a "\" before one of them
    /// is Doxygen's escape -->, a carriage return or a line feed, or a "." at
    /// position 1; else Acceptable (also for a position of 0 or less, or past
    /// the text). Changes neither text nor position.
    /// Never Intermediate. A character beyond the Basic Multilingual Plane is
    /// two units, of which the second alone is looked at; it is never refused.
    State validate(QString &text, int &position) const override;
};
