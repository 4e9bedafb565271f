// TZ names any zone or follows any rule. Damaged zone files are left out: the C library alone reads them, and
// version 2.36 falls on some, with every program of the system.

#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/fuzz/FuzzFile.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <string>

using namespace tambrelle;
using namespace std::chrono;

namespace {

constexpr std::array<Instant, 5> instants{
    sys_days(1792y / September / 22), sys_days(1970y / January / 1), sys_days(2026y / March / 29) + 1h,
    sys_days(2026y / October / 25) + 1h, sys_days(2400y / February / 29) + 12h};

void convert(Instant instant) {
    const auto moment = RevolutionaryCalendar::toMoment(instant);
    fuzz::mustHold(moment.time.hours >= 0 && moment.time.hours < 10);
    fuzz::mustHold(moment.date.month >= 1 && moment.date.month <= 13);
    fuzz::mustHold(!moment.date.formatted().empty());
    const auto civil = GregorianCalendar::components(instant);
    fuzz::mustHold(civil.has_value());
    // No more is asked of these: by a broken rule the C library tells other times at each call.
    static_cast<void>(GregorianCalendar::instant(*civil));
    static_cast<void>(GregorianCalendar::nextInstant(*civil));
    static_cast<void>(GregorianCalendar::addingDays(1, instant));
    static_cast<void>(GregorianCalendar::addingDays(-400, instant));
    static_cast<void>(GregorianCalendar::daysBetween(instants[1], instant));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(static_cast<const char*>(static_cast<const void*>(data)), size);
    ::setenv("TZ", text.c_str(), 1);
    ::tzset();
    for (const Instant instant : instants)
        convert(instant);
    return 0;
}
