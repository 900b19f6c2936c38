// The journal as tambro open reads it back: a request for every line, each
// described under its call's name, whatever the lines hold.
#include "fuzz_input.h"

#include "tools/tambro/journal_reader.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray journal = bytes(data, size);
    const QJsonArray requests = requestsIn(journal);
    check(requests.size() == journal.split('\n').size() - journal.split('\n').count(QByteArray()),
          "not one request a line");
    for (const QJsonValue &request : requests) {
        const QString call = request[QStringLiteral("call")].toString();
        // An empty description may be a null text, which starts with nothing.
        check(request.isObject() && (call.isEmpty() || describeRequest(request.toObject()).startsWith(call)),
              "a request is described under another name");
    }
    return 0;
}
