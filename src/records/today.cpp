// Today's date for the records and the log.
#include "platform/platform.h"
#include "records/dates.h"
#include "records/state.h"
#include "session/startup.h"
#include "session/state.h"

namespace records {

std::string systemdate() {
    std::string text;
    platform::attempt([&] { text = platform::os().dateText(); });
    return text;
}

// A record keeps the date start-up took apart, as numbers of the double
// tag; the fallback date is stored as short numbers.
Today today() {
    using session::ss;
    auto tag = ss.datefell ? course::tagShort : course::tagDouble;
    return {{double(ss.mm), tag}, {double(ss.dd), tag}, {double(ss.yy), tag}};
}

}  // namespace records
