#include "plans/additioncheck.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "plans/filetail.h"

namespace tamo {
namespace {

using namespace std::string_view_literals;

constexpr size_t kStreamEntry = 9;  // one byte, six of the place, two of the generation
constexpr size_t kMostObjects = 1000000;

// What of the addition is not read yet. A word that is not there makes it Bad for good.
class Rest {
 public:
  explicit Rest(std::string_view text) : text_(text) {}

  bool Word(std::string_view word) {
    if (!text_.starts_with(word)) return false;
    text_.remove_prefix(word.size());
    return true;
  }
  void Skip(std::string_view word) { good_ = Word(word) && good_; }
  // Digits, at most fifteen.
  qint64 Number() {
    qint64 number = 0;
    size_t digits = 0;
    while (digits < text_.size() && digits < 15 && text_[digits] >= '0' && text_[digits] <= '9') {
      number = number * 10 + (text_[digits++] - '0');
    }
    text_.remove_prefix(digits);
    good_ = good_ && digits > 0;
    return number;
  }
  std::string_view Take(size_t count) {
    good_ = good_ && count <= text_.size();
    const std::string_view taken = text_.substr(0, count);
    text_.remove_prefix(taken.size());
    return taken;
  }
  bool Ends() const { return text_.empty(); }
  std::string_view Text() const { return text_; }
  bool Good() const { return good_; }

 private:
  std::string_view text_;
  bool good_ = true;
};

struct Named {
  qint64 number = 0;
  qint64 generation = 0;
  qint64 place = 0;
};

struct Part {
  std::vector<Named> objects;
  std::string_view trailer;
};

std::optional<Part> TableAt(Rest rest) {
  Part part;
  rest.Skip("xref\n"sv);
  while (rest.Good() && !rest.Word("trailer\n"sv)) {
    const qint64 first = rest.Number();
    rest.Skip(" "sv);
    const qint64 count = rest.Number();
    rest.Skip("\n"sv);
    for (qint64 i = 0; i < count && rest.Good() && part.objects.size() < kMostObjects; ++i) {
      Named named{first + i, 0, rest.Number()};
      rest.Skip(" "sv);
      named.generation = rest.Number();
      rest.Skip(" n \n"sv);
      part.objects.push_back(named);
    }
  }
  part.trailer = rest.Text();
  return rest.Good() ? std::optional(part) : std::nullopt;
}

qint64 Wide(std::string_view bytes) {
  qint64 number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

std::optional<Part> StreamAt(Rest rest) {
  Part part;
  rest.Number();
  rest.Skip(" 0 obj\n<</Type/XRef/W[1 6 2]/Index["sv);
  while (rest.Good() && !rest.Word("]"sv)) {
    const qint64 first = rest.Number();
    rest.Skip(" "sv);
    const qint64 count = rest.Number();
    rest.Word(" "sv);
    for (qint64 i = 0; i < count && part.objects.size() < kMostObjects; ++i) {
      part.objects.push_back({first + i, 0, 0});
    }
  }
  const size_t data = rest.Text().find(">>\nstream\n"sv);
  if (!rest.Good() || data == std::string_view::npos) return std::nullopt;
  part.trailer = rest.Take(data);
  rest.Skip(">>\nstream\n"sv);
  for (Named& named : part.objects) {
    const std::string_view entry = rest.Take(kStreamEntry);
    if (!rest.Good() || entry[0] != 1) return std::nullopt;
    named.place = Wide(entry.substr(1, 6));
    named.generation = Wide(entry.substr(7));
  }
  rest.Skip("\nendstream\nendobj\n"sv);
  return rest.Good() ? std::optional(part) : std::nullopt;
}

// Whether the objects lie one behind the other from the addition's head to `end`.
bool InARow(std::vector<Named> objects, std::string_view text, qint64 size, size_t end) {
  std::sort(objects.begin(), objects.end(),
            [](const Named& a, const Named& b) { return a.place < b.place; });
  qint64 next = size + 1 + qint64(sizeof kAdditionHead) - 1;
  bool first = true;
  for (const Named& named : objects) {
    const qint64 at = named.place - size;
    if (at < 0 || at > qint64(end) || (first && named.place != next)) return false;
    if (!first && !text.substr(0, size_t(at)).ends_with("\nendobj\n"sv)) return false;
    Rest rest(text.substr(size_t(at)));
    if (rest.Number() != named.number) return false;
    rest.Skip(" "sv);
    if (rest.Number() != named.generation || !rest.Word(" obj\n"sv) || !rest.Good()) return false;
    first = false;
  }
  return !first && text.substr(0, end).ends_with("\nendobj\n"sv);
}

// Where the cross-reference part lies in the addition, when its last lines are right.
std::optional<size_t> SealedXref(const QByteArray& bytes, qint64 size, qsizetype sum) {
  const QByteArray sealed = bytes.left(sum);
  const qsizetype at = bytes.lastIndexOf("startxref\n");
  if (at < sum) return std::nullopt;
  Rest rest(std::string_view(bytes.constData() + at, size_t(bytes.size() - at)));
  rest.Skip("startxref\n"sv);
  const qint64 xref = rest.Number() - size;
  if (!rest.Good() || xref < 0 || xref >= sum) return std::nullopt;
  QByteArray again = sealed;
  SealAddition(again, size, xref + size);
  return again == bytes ? std::optional(size_t(xref)) : std::nullopt;
}

}  // namespace

bool IsAddition(const QByteArray& bytes, qint64 size) {
  const qsizetype sum = bytes.lastIndexOf(kAdditionSum);
  if (sum < 0 || !bytes.startsWith(QByteArray("\n") + kAdditionHead)) return false;
  const std::optional<size_t> xref = SealedXref(bytes, size, sum);
  if (!xref) return false;
  const std::string_view text(bytes.constData(), size_t(sum));
  const Rest at(text.substr(*xref));
  const std::optional<Part> part = at.Text().starts_with("xref\n"sv) ? TableAt(at) : StreamAt(at);
  if (!part || !InARow(part->objects, text, size, *xref)) return false;
  const size_t before = part->trailer.find("/Prev "sv);
  if (before == std::string_view::npos) return false;
  Rest rest(part->trailer.substr(before + 6));
  return rest.Number() < size && rest.Good();
}

}  // namespace tamo
