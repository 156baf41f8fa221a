#include "toolkit/paragraphs.h"

#include <algorithm>
#include <string_view>

std::string JoinBrokenLines(const std::string& text) {
  constexpr std::string_view Break = "\r\n";
  std::string joined;
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t end = std::min(text.find(Break, place), text.size());
    joined += text.substr(place, end - place);
    place = end;
    const std::size_t next = std::min(text.find_first_not_of(Break, place), text.size());
    joined += next - place == Break.size() ? " " : text.substr(place, next - place);
    place = next;
  }
  return joined;
}
