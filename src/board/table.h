#pragma once

#include <array>
#include <cassert>
#include <cstddef>

/// A table of `N` entries with indices 1 to `N`, like the squares and the pieces. An index out of
/// range fails an assert.
template <typename T, int N>
class Table {
 public:
  constexpr T& operator[](int index) {
    assert(1 <= index && index <= N);
    return entries[static_cast<std::size_t>(index - 1)];
  }
  constexpr const T& operator[](int index) const {
    assert(1 <= index && index <= N);
    return entries[static_cast<std::size_t>(index - 1)];
  }

  constexpr auto begin() { return entries.begin(); }
  constexpr auto end() { return entries.end(); }
  constexpr auto begin() const { return entries.begin(); }
  constexpr auto end() const { return entries.end(); }

  bool operator==(const Table&) const = default;

 private:
  std::array<T, static_cast<std::size_t>(N)> entries{};
};
