#include "tests/core/ZoneFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>

namespace tambrelle::test {
namespace {

constexpr std::int64_t beginningOfTime = std::numeric_limits<std::int64_t>::min() / 2;

class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : bytes_{bytes} {}

    std::string_view take(std::size_t count) {
        if (bytes_.size() < count)
            throw std::runtime_error{"a zone file ends early"};
        const auto taken = bytes_.substr(0, count);
        bytes_.remove_prefix(count);
        return taken;
    }
    std::uint8_t byte() { return static_cast<std::uint8_t>(take(1)[0]); }
    std::int64_t bigEndian(std::size_t size) {
        std::uint64_t value = 0;
        for (std::size_t index = 0; index < size; ++index) {
            const std::uint8_t next = byte();
            if (index == 0 && next >= 0x80)
                value = std::numeric_limits<std::uint64_t>::max();
            value = value << 8 | next;
        }
        return static_cast<std::int64_t>(value);
    }
    std::string_view rest() const { return bytes_; }

private:
    std::string_view bytes_;
};

struct Header {
    explicit Header(ByteReader& reader) {
        if (reader.take(4) != "TZif")
            throw std::runtime_error{"a header without its mark"};
        version = reader.byte();
        reader.take(15);
        for (auto* count : {&utcFlags, &standardFlags, &leaps, &transitions, &types, &nameBytes})
            *count = static_cast<std::size_t>(reader.bigEndian(4));
    }
    std::size_t blockSize(std::size_t timeSize) const {
        return transitions * (timeSize + 1) + types * 6 + nameBytes + leaps * (timeSize + 4) + standardFlags +
               utcFlags;
    }
    std::uint8_t version = 0;
    std::size_t utcFlags = 0, standardFlags = 0, leaps = 0, transitions = 0, types = 0, nameBytes = 0;
};

// The text of a POSIX TZ rule, read from the left.
class RuleReader {
public:
    explicit RuleReader(std::string_view text) : text_{text} {}

    bool atEnd() const { return text_.empty(); }
    bool skip(char expected) {
        if (text_.empty() || text_.front() != expected)
            return false;
        text_.remove_prefix(1);
        return true;
    }
    bool atNumber() const {
        return !text_.empty() && (text_.front() == '-' || text_.front() == '+' ||
                                  (text_.front() >= '0' && text_.front() <= '9'));
    }
    void skipName() {
        if (skip('<')) {
            text_.remove_prefix(text_.find('>') + 1);
            return;
        }
        while (!text_.empty() && ((text_.front() | 0x20) >= 'a') && ((text_.front() | 0x20) <= 'z'))
            text_.remove_prefix(1);
    }
    std::int64_t number() {
        std::int64_t value = 0;
        const auto result = std::from_chars(text_.data(), text_.data() + text_.size(), value);
        if (result.ec != std::errc{})
            throw std::runtime_error{"a number was expected in the rule"};
        text_.remove_prefix(static_cast<std::size_t>(result.ptr - text_.data()));
        return value;
    }
    std::int64_t clock() { // [+-]h[:m[:s]] in seconds
        const bool isNegative = skip('-');
        if (!isNegative)
            skip('+');
        std::int64_t seconds = number() * 3600;
        if (skip(':'))
            seconds += number() * 60;
        if (skip(':'))
            seconds += number();
        return isNegative ? -seconds : seconds;
    }

private:
    std::string_view text_;
};

// Mm.w.d/time: weekday d (0 is Sunday) of week w (5 is the last) of month m, at a wall-clock time.
struct YearlyChange {
    explicit YearlyChange(RuleReader& reader) {
        if (!reader.skip(',') || !reader.skip('M'))
            throw std::runtime_error{"only rules by month, week and weekday are known here"};
        month = static_cast<unsigned>(reader.number());
        reader.skip('.');
        week = static_cast<unsigned>(reader.number());
        reader.skip('.');
        weekday = static_cast<unsigned>(reader.number());
        if (reader.skip('/'))
            wallTime = reader.clock();
    }
    std::int64_t at(std::int64_t year, std::int64_t offsetBefore) const {
        using namespace std::chrono;
        const auto inMonth = std::chrono::year{static_cast<int>(year)} / static_cast<int>(month);
        const auto day = week == 5 ? sys_days{inMonth / std::chrono::weekday{weekday}[last]}
                                   : sys_days{inMonth / std::chrono::weekday{weekday}[week]};
        return day.time_since_epoch().count() * 86'400LL + wallTime - offsetBefore;
    }
    unsigned month = 0, week = 0, weekday = 0;
    std::int64_t wallTime = std::int64_t{2} * 3600;
};

std::int64_t yearOf(std::int64_t at) {
    using namespace std::chrono;
    const year_month_day civil{floor<days>(sys_seconds{seconds{at}})};
    return int{civil.year()};
}

} // namespace

std::optional<ZoneFile> ZoneFile::read(std::string_view bytes, std::int64_t lastYear) {
    if (!bytes.starts_with("TZif"))
        return std::nullopt;

    ByteReader reader{bytes};
    const Header oldHeader{reader};
    if (oldHeader.version < '2')
        throw std::runtime_error{"a zone file with 32-bit times only"};
    reader.take(oldHeader.blockSize(4));

    const Header header{reader};
    std::vector<std::int64_t> times;
    for (std::size_t index = 0; index < header.transitions; ++index)
        times.push_back(reader.bigEndian(8));
    const std::string_view typeOf = reader.take(header.transitions);
    std::vector<std::int64_t> offsets;
    for (std::size_t index = 0; index < header.types; ++index) {
        offsets.push_back(reader.bigEndian(4));
        reader.take(2);
    }
    reader.take(header.nameBytes);
    std::vector<OffsetChange> leaps;
    for (std::size_t index = 0; index < header.leaps; ++index) {
        const std::int64_t at = reader.bigEndian(8);
        leaps.push_back({at, reader.bigEndian(4)});
    }
    reader.take(header.standardFlags + header.utcFlags);

    ZoneFile zone;
    zone.changes_.push_back({beginningOfTime, offsets.at(0)});
    for (std::size_t index = 0; index < times.size(); ++index)
        zone.changes_.push_back({times[index], offsets.at(static_cast<std::uint8_t>(typeOf[index]))});
    zone.lastListedChange_ = zone.changes_.back().at;

    std::string_view rule = reader.rest();
    if (rule.size() >= 2 && rule.front() == '\n' && rule.back() == '\n')
        rule = rule.substr(1, rule.size() - 2);
    zone.followRule(rule, lastYear);
    zone.weaveInLeapSeconds(leaps);
    return zone;
}

void ZoneFile::followRule(std::string_view rule, std::int64_t lastYear) {
    if (rule.empty())
        return;
    RuleReader reader{rule};
    reader.skipName();
    const std::int64_t standard = -reader.clock(); // POSIX counts to the west
    if (reader.atEnd()) {
        if (changes_.size() > 1 && changes_.back().offset != standard)
            throw std::runtime_error{"the rule is not what the list ends with"};
        return;
    }
    reader.skipName();
    const std::int64_t summer = reader.atNumber() ? -reader.clock() : standard + 3600;
    const YearlyChange begin{reader};
    const YearlyChange end{reader};
    followsARule_ = true;

    std::vector<OffsetChange> ruled;
    for (std::int64_t year = yearOf(lastListedChange_) - 1; year <= lastYear + 1; ++year) {
        ruled.push_back({begin.at(year, standard), summer});
        ruled.push_back({end.at(year, summer), standard});
    }
    std::sort(ruled.begin(), ruled.end(),
              [](const auto& left, const auto& right) { return left.at < right.at; });
    std::copy_if(ruled.begin(), ruled.end(), std::back_inserter(changes_),
                 [this](const OffsetChange& change) { return change.at > lastListedChange_; });
}

// A leap second shows the second before it once more; its correction is in force from then on.
void ZoneFile::weaveInLeapSeconds(const std::vector<OffsetChange>& leaps) {
    countsLeapSeconds_ = !leaps.empty();
    if (!countsLeapSeconds_)
        return;
    const auto zoneChanges = changes_;
    const auto correctionAt = [&leaps](std::int64_t at) {
        std::int64_t correction = 0;
        for (const auto& leap : leaps) {
            if (leap.at <= at)
                correction = leap.offset;
        }
        return correction;
    };
    for (auto& change : changes_)
        change.offset -= correctionAt(change.at);
    for (const auto& leap : leaps) {
        const auto next = std::find_if(zoneChanges.begin(), zoneChanges.end(),
                                       [&leap](const OffsetChange& change) { return change.at > leap.at; });
        changes_.push_back({leap.at, std::prev(next)->offset - leap.offset});
    }
    std::stable_sort(changes_.begin(), changes_.end(),
                     [](const auto& left, const auto& right) { return left.at < right.at; });
}

std::int64_t ZoneFile::offsetAt(std::int64_t at) const {
    const auto next =
        std::upper_bound(changes_.begin(), changes_.end(), at,
                         [](std::int64_t time, const OffsetChange& change) { return time < change.at; });
    return std::prev(next)->offset;
}

std::optional<std::int64_t> ZoneFile::firstAt(std::int64_t wall) const {
    constexpr std::int64_t farthestOffset = std::int64_t{30} * 3600;
    auto change =
        std::upper_bound(changes_.begin(), changes_.end(), wall - farthestOffset,
                         [](std::int64_t time, const OffsetChange& entry) { return time < entry.at; });
    for (change = std::prev(change); change != changes_.end() && change->at <= wall + farthestOffset;
         ++change) {
        const std::int64_t at = wall - change->offset;
        const auto next = std::next(change);
        if (at >= change->at && (next == changes_.end() || at < next->at))
            return at;
    }
    return std::nullopt;
}

} // namespace tambrelle::test
