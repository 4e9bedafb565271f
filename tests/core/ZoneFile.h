#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tambrelle::test {

/// From this second on (since 1970-01-01 00:00:00 UTC) the wall clock is ahead by this many seconds.
struct OffsetChange {
    std::int64_t at;
    std::int64_t offset;
};

/// A reading of a zone's file by RFC 8536 alone, without the C library: all changes of its offset, leap
/// seconds included, told in full up to a last year.
class ZoneFile {
public:
    /// Absent where the bytes are no zone data; malformed ones throw std::runtime_error or std::out_of_range.
    static std::optional<ZoneFile> read(std::string_view bytes, std::int64_t lastYear);

    const std::vector<OffsetChange>& changes() const { return changes_; }
    bool countsLeapSeconds() const { return countsLeapSeconds_; }
    /// Whether the years beyond the file's own list follow a rule of summer time.
    bool followsARule() const { return followsARule_; }
    std::int64_t lastListedChange() const { return lastListedChange_; }

    std::int64_t offsetAt(std::int64_t at) const;
    std::int64_t wallAt(std::int64_t at) const { return at + offsetAt(at); }
    /// The first instant at which the wall clock shows this, absent where it never does.
    std::optional<std::int64_t> firstAt(std::int64_t wall) const;

private:
    void followRule(std::string_view rule, std::int64_t lastYear);
    void weaveInLeapSeconds(const std::vector<OffsetChange>& leaps);

    std::vector<OffsetChange> changes_; // the first holds from the beginning of time
    std::int64_t lastListedChange_ = 0;
    bool countsLeapSeconds_ = false;
    bool followsARule_ = false;
};

} // namespace tambrelle::test
