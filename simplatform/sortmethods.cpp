#include "sortmethods.h"

#include "journal.h"

#include <QCollator>
#include <QJsonArray>
#include <QLocale>
#include <QString>
#include <QtEndian>

namespace {

QString fromBigEndianUcs2(const unsigned short *units)
{
    QString text;
    if (!units)
        return text;
    for (const unsigned short *unit = units; *unit != 0; ++unit)
        text.append(QChar(qFromBigEndian<quint16>(unit)));
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
    return collator().compare(fromBigEndianUcs2(first), fromBigEndianUcs2(second));
}
