#pragma once

#include <array>
#include <cassert>
#include <concepts>
#include <cstddef>

// An array addressed by a whole number of the game or by an enumerator, the first of which is `first`. Its values start
// out as T{}. An index out of range is a fault of the caller.
template <typename T, std::size_t count, typename Index = int, int first = 0>
struct Indexed {
    template <std::convertible_to<Index> I>
    constexpr T& operator[](I index) {
        return values[Place(static_cast<Index>(index))];
    }
    template <std::convertible_to<Index> I>
    constexpr const T& operator[](I index) const {
        return values[Place(static_cast<Index>(index))];
    }

    constexpr auto begin() { return values.begin(); }
    constexpr auto begin() const { return values.begin(); }
    constexpr auto end() { return values.end(); }
    constexpr auto end() const { return values.end(); }
    constexpr std::size_t size() const { return count; }
    constexpr void fill(const T& value) { values.fill(value); }

    bool operator==(const Indexed&) const = default;

    std::array<T, count> values{};

private:
    static constexpr std::size_t Place(Index index) {
        const int place = static_cast<int>(index) - first;
        assert(place >= 0 && place < static_cast<int>(count));
        return static_cast<std::size_t>(place);
    }
};
