#include "content/DailyItems.h"
#include "content/HistoricalData.h"
#include "core/RevolutionaryCalendar.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>
#include <string>

// Every word of the tables, by a print of their text: whoever changes a letter reads the whole row again and
// approves it by its new print.

namespace tambrelle {
namespace {

/// The 64-bit FNV-1a hash.
std::uint64_t print(const std::string& text) {
    std::uint64_t hash = 0xcbf2'9ce4'8422'2325;
    for (const char byte : text) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x100'0000'01b3;
    }
    return hash;
}

void expectApproved(const std::string& text, std::uint64_t approved) {
    EXPECT_EQ(print(text), approved) << text;
}

template <class Texts>
std::string lines(const Texts& texts) {
    std::ostringstream all;
    for (const std::string_view text : texts)
        all << text << '\n';
    return all.str();
}

TEST(ApprovedTables, DailyItems) {
    std::ostringstream rows;
    std::size_t row = 0;
    for (const DailyItem& item : DailyItems::all) {
        rows << row / 30 + 1 << '|' << row % 30 + 1 << '|' << item.frenchName << '|' << item.name << '|'
             << rawValue(item.category) << '|' << item.emoji << '\n';
        ++row;
    }
    expectApproved(rows.str(), 0x5148'd153'259c'cb2e);
}

TEST(ApprovedTables, HistoricalEvents) {
    std::ostringstream rows;
    for (const HistoricalData::Event& event : HistoricalData::allEvents) {
        rows << event.revolutionaryDate.month << '|' << event.revolutionaryDate.day << '|'
             << (event.year ? std::to_string(*event.year) : "") << '|' << event.title << '|'
             << event.description << '|' << event.emoji << '\n';
    }
    expectApproved(rows.str(), 0x6519'd55c'9ede'8583);
}

TEST(ApprovedTables, NamesOfMonthsAndDays) {
    using namespace RevolutionaryCalendar;
    expectApproved(lines(monthNames), 0xf9df'11f0'cea6'fc0c);
    expectApproved(lines(monthMeanings), 0x28c2'aa87'9774'e281);
    expectApproved(lines(monthEmojis), 0xa153'8872'fa86'3eda);
    expectApproved(lines(dayNames), 0xbf0d'1e12'7731'd7c4);
    expectApproved(lines(sansculottidesNames), 0x2212'8660'58d8'd6ca);
}

TEST(ApprovedTables, Slogans) {
    expectApproved(lines(HistoricalData::slogans), 0x591c'7ebb'660f'26d7);
}

} // namespace
} // namespace tambrelle
