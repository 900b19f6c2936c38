// Filters from arbitrary patterns asked about arbitrary names: "*" passes
// everything, and a name without "." never passes a checked, non-empty
// extension list. The input's first byte holds the constructor's flags and
// kind; the rest is lines, patterns before an empty line and names after.
#include "fuzz_input.h"

#include <TAMBRO_File_Filter.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const bool caseSensitive = data[0] & 1;
    const bool wildcard = data[0] & 2;
    const auto kind = TAMBRO_FILE_FILTER_EXP_TYPE(int8_t(data[0]) >> 2); // the ring tones ask the phone: not here
    const QStringList lines = QString::fromUtf8(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1)).split(u'\n');
    const QStringList patterns = lines.mid(0, lines.indexOf(QString()));
    const TAMBRO_File_Filter all(QStringLiteral("*"), caseSensitive, wildcard);
    const TAMBRO_File_Filter filters[] = {
        TAMBRO_File_Filter(patterns, caseSensitive, wildcard), TAMBRO_File_Filter(patterns.value(0), caseSensitive, wildcard),
        TAMBRO_File_Filter(kind == TAMBRO_FILTER_RING_TONES ? TAMBRO_FILTER_PATTERN : kind, caseSensitive, wildcard)};
    for (const QString &name : lines.mid(patterns.size())) {
        check(all.match(name), "\"*\" refused a name");
        for (const TAMBRO_File_Filter &filter : filters) {
            const bool byExtension = filter.expType == TAMBRO_FILTER_PATTERN || filter.expType == TAMBRO_FILTER_PATTERN_LIST;
            if (byExtension && filter.checkExtensions && !filter.extensions.isEmpty() && !name.contains(u'.'))
                check(!filter.match(name), "a name without a dot passed an extension list");
        }
    }
    return 0;
}
