#pragma once

#include "core/RandomSource.h"

#include <cstdint>
#include <deque>
#include <initializer_list>

namespace tambrelle::fakes {

/// Gives the scripted words in their order, and then for ever the word whose index is 0.
class FakeRandomSource final : public RandomSource {
public:
    FakeRandomSource() = default;
    explicit FakeRandomSource(std::initializer_list<std::uint64_t> words) : script(words) {}

    std::uint64_t next() override {
        ++draws;
        if (script.empty())
            return wordFor(0, 10);
        const std::uint64_t word = script.front();
        script.pop_front();
        return word;
    }

    /// Scripts a word from which a uniform index below `bound` comes out as `index`.
    void addIndex(std::uint64_t index, std::uint64_t bound = 10) { script.push_back(wordFor(index, bound)); }
    void addWord(std::uint64_t word) { script.push_back(word); }

    int draws = 0;

private:
    /// The middle of the words that the multiplication maps to `index`, far from those that are rejected.
    static std::uint64_t wordFor(std::uint64_t index, std::uint64_t bound) {
        const std::uint64_t share = UINT64_MAX / bound;
        return index * share + share / 2;
    }

    std::deque<std::uint64_t> script;
};

} // namespace tambrelle::fakes
