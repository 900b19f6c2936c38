// Arbitrary text and cursor positions through the file name validator: the
// answer is Invalid or Acceptable, nothing is changed, and only the
// character before the cursor and whether the cursor is at 1 decide.
#include "fuzz_input.h"

#include <TAMBRO_Char_Validator.h>

#include <algorithm>

namespace {

QValidator::State validate(QString text, int position)
{
    static const TAMBRO_Char_Validator validator;
    const QString before = text;
    const int cursor = position;
    const QValidator::State state = validator.validate(text, position);
    check(text == before && position == cursor, "text or position changed");
    check(state == QValidator::Invalid || state == QValidator::Acceptable, "an intermediate answer");
    return state;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const int position = int8_t(data[0]); // before, inside and past the text
    const QString text = utf16Text(data + 1, size - 1);
    // The same keystroke in the shortest text: the character alone at 1,
    // after another one elsewhere, no character outside the text.
    const bool inside = position > 0 && position <= text.size();
    const QString shortest = inside ? QString(position == 1 ? "" : "x") + text.at(position - 1) : QString();
    const int shortPosition = position <= 0 ? 0 : std::min(position, 2);
    check(validate(text, position) == validate(shortest, shortPosition), "more than the keystroke decided");
    return 0;
}
