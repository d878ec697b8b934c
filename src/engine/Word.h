#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace blunko {

/// A code of at most three letters, as the game's score codes and action sets are: a string that compares as fast as a
/// number.
class Word {
 public:
  template <std::size_t Size>
  constexpr Word(const char (&Text)[Size]) {
    static_assert(Size <= 4, "a word has at most three letters");
    for (std::size_t i = 0; i + 1 < Size; ++i) letters[i] = Text[i];
  }
  explicit constexpr Word(char Letter) : letters{Letter} {}

  constexpr operator std::string_view() const& { return letters.data(); }
  constexpr bool contains(char Letter) const {
    return letters[0] == Letter || letters[1] == Letter || letters[2] == Letter;
  }
  /// The first letter, 0 of an empty word.
  constexpr char front() const { return letters[0]; }

  friend constexpr bool operator==(const Word& Left, const Word& Right) {
    return std::bit_cast<std::uint32_t>(Left.letters) == std::bit_cast<std::uint32_t>(Right.letters);
  }

 private:
  std::array<char, 4> letters{};
};

}  // namespace blunko
