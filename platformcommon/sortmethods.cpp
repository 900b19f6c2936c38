#include "sortmethods.h"

#include "journal.h"

#include <QCollator>
#include <QJsonArray>
#include <QLocale>
#include <QString>
#include <QtEndian>

namespace {

// Into the caller's string, which a sort's n log n comparisons reuse.
const QString &fromBigEndianUcs2(const unsigned short *units, QString &text)
{
    qsizetype length = 0;
    while (units && units[length] != 0)
        ++length;
    text.resize(length);
    QChar *out = text.data();
    for (qsizetype i = 0; i < length; ++i)
        out[i] = QChar(qFromBigEndian<quint16>(units + i));
    return text;
}

// The units as the caller passed them, terminator included.
QJsonValue unitsToJson(const unsigned short *units)
{
    if (!units)
        return QJsonValue();
    QJsonArray array;
    const unsigned short *unit = units;
    do
        array.append(int(*unit));
    while (*unit++ != 0);
    return array;
}

// In the C locale Qt's collator compares code points and ignores the numeric
// option; names are then sorted by the common (English) rules instead.
QLocale collationLocale(const QLocale &locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates)
                                           : locale;
}

// Names sort as in a file manager: by the current locale, case ignored, and
// runs of digits by their value (file2 before file10).
QCollator &collator()
{
    thread_local QLocale locale = QLocale::c();
    thread_local QCollator instance;
    if (locale != QLocale() || !instance.numericMode()) {
        locale = QLocale();
        instance = QCollator(collationLocale(locale));
        instance.setCaseSensitivity(Qt::CaseInsensitive);
        instance.setNumericMode(true);
    }
    return instance;
}

} // namespace

int sortmethods_str_cmp(const unsigned short *first, const unsigned short *second)
{
    if (KivSim::Journal::enabled()) {
        KivSim::Journal::Line("sortmethods_str_cmp")
            .arg("first", unitsToJson(first))
            .arg("second", unitsToJson(second))
            .write();
    }
    thread_local QString firstText;
    thread_local QString secondText;
    return collator().compare(fromBigEndianUcs2(first, firstText), fromBigEndianUcs2(second, secondText));
}
