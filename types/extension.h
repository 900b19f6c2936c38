// The three ways a file name's extension is taken, and the comparison of an
// extension with the fixed lists.
#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

namespace Tambro {

// The text after the last "." anywhere in the name, the whole name when it has
// none: a dot in a folder name counts when the file name has none.
QStringView lastDotExtension(const QString &name);
// The text after the last "." of the file name part only, empty without one;
// what QFileInfo::suffix() answers.
QStringView fileNameExtension(const QString &name);

// Whether the extension, lower-cased, equals one of the (lower-case) list.
bool isListedExtension(QStringView extension, std::initializer_list<QLatin1String> list);

// Whether the text begins with the lower-case word ignoring case, exactly as
// QStringView::startsWith(word, Qt::CaseInsensitive) says.
bool startsWithWord(QStringView text, QLatin1String word);

} // namespace Tambro
