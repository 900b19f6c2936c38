// Sizes as the phone writes them: bytes, kilobytes or megabytes (never more),
// in the translated template of the operation.
#include "TAMBRO_Global.h"

#include "translation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

enum Unit { Bytes, KiloBytes, MegaBytes };

struct Template
{
    const char *resourceId;
    const char *english;
};

using Templates = Template[3]; // by unit

constexpr Templates SelectionTitle = {
    {"FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_B", "%1 files selected - Total %2 B"},
    {"FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_KB", "%1 files selected - Total %2 KB"},
    {"FMT_RID_AIA_1_FILES_SELECTED_TOTAL_2_MB", "%1 files selected - Total %2 MB"}};
constexpr Templates DetailView = {{"FMT_RID_LIST_B_1_B", "%1 B"},
                                  {"FMT_RID_LIST_B_1_KB", "%1 KB"},
                                  {"FMT_RID_LIST_B_1_MB", "%1 MB"}};
constexpr Templates Standard = {{"FMT_RID_STANDARD_1_B", "%1 B"},
                                {"FMT_RID_STANDARD_1_KB", "%1 KB"},
                                {"FMT_RID_STANDARD_1_MB", "%1 MB"}};

struct Scaled
{
    QString number;
    Unit unit;
};

// The decimals the text is written with. Digits beyond what a double carries
// say nothing, and a huge number of them would take gigabytes or abort in
// Qt's conversion. A negative number gets printf's default, as on the phone
// (Qt alone would read one of them as "shortest").
int textDecimals(int decimals)
{
    constexpr int MostDecimals = std::numeric_limits<double>::max_digits10;
    constexpr int PrintfDefault = 6;
    return decimals < 0 ? PrintfDefault : std::min(decimals, MostDecimals);
}

// The unit is chosen by the value rounded to the decimals asked, so that a
// size that would read 1024.0 KB reads 1.0 MB; the text is written from the
// unrounded value, with the decimals asked within the bounds above. A NaN
// size is no byte count and takes the kilobyte path.
Scaled formatWithUnit(double size, int decimals)
{
    if (size < 1024.0)
        return {QString::number(size, 'f', 0), Bytes};
    const double kilo = size * 0.0009765625;
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::floor(kilo * scale + 0.5) / scale;
    if (rounded >= 1024.0)
        return {QString::number(kilo * 0.0009765625, 'f', textDecimals(decimals)), MegaBytes};
    return {QString::number(kilo, 'f', textDecimals(decimals)), KiloBytes};
}

QString templateFor(const Templates &templates, Unit unit)
{
    return Tambro::translate("TAMBRO_Global", templates[unit].resourceId, templates[unit].english);
}

QString sizeText(const Templates &templates, double size, int decimals)
{
    const Scaled scaled = formatWithUnit(size, decimals);
    return templateFor(templates, scaled.unit).arg(scaled.number);
}

} // namespace

QString TAMBRO_Global::getMultiSelectTitle(double size, unsigned count)
{
    const Scaled scaled = formatWithUnit(size, 1);
    return templateFor(SelectionTitle, scaled.unit).arg(QString::number(count), scaled.number);
}

QString TAMBRO_Global::getDetailViewSizeStr(double size)
{
    return sizeText(DetailView, size, 1);
}

QString TAMBRO_Global::uintSizeToGbMbStr(double size, int decimals)
{
    return sizeText(Standard, size, decimals);
}
