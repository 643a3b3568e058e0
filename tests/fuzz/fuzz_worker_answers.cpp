#include <sys/socket.h>
#include <unistd.h>

#include "plans/additioncheck.h"
#include "plans/wireguide.h"
#include "plans/workerplan.h"
#include "support/memoryreader.h"

// A program that is fed by a lying worker. The bytes tell for each call how it is answered:
// honestly, with bytes of the honest answer changed, with anything, by another kind of message or
// for another call, or with what is no message at all.

namespace {

using namespace tamo;

constexpr int kCalls = 11;

PlanContents Contents() {
  PlanContents contents;
  contents.sizes = {{612, 792}, {300, 200}};
  Mark circle;
  circle.kind = Mark::Kind::Circle;
  circle.points = {{7, 8}};
  circle.name = QStringLiteral("tamo-1");
  contents.marks = {circle};
  return contents;
}

PageContent Content() {
  PageContent content;
  content.texts.resize(1);
  content.texts[0].text = QStringLiteral("A1");
  content.texts[0].places.resize(2);
  content.paths.resize(1);
  content.paths[0].steps.resize(2);
  content.pictures.resize(1);
  return content;
}

PlanGuide Guide() {
  PlanGuide guide;
  guide.labels = {QStringLiteral("A-101")};
  PlanTarget target;
  target.kind = PlanTarget::Kind::Page;
  target.page = 2;
  guide.bookmarks = {{QStringLiteral("Roof"), 1, target}};
  guide.layers = {{QStringLiteral("A-WALL"), true, true}};
  return guide;
}

// What an honest worker says to the calls below, in their order.
QByteArray Honest(int call) {
  WireWriter wire;
  switch (call) {
    case 1:
      wire.Flag(true);
      wire.Flag(true);
      Put(wire, Contents());
      break;
    case 2:
      wire.Flag(true);
      Put(wire, PageSize{300, 200});
      Put(wire, PageGaps());
      break;
    case 3:
      wire.Flag(true);
      Put(wire, PageGaps());
      break;
    case 4:
      Put(wire, Content());
      break;
    case 5: {
      PlanUpdate update;
      update.error = 57;
      update.problem = QStringLiteral("no");
      Put(wire, update);
      break;
    }
    case 7:
      PutOutcome(wire, 0, {});
      break;
    case 8:
      Put(wire, Content());
      break;
    case 9:
      Put(wire, Guide());
      break;
    case 10:
      Put(wire, std::vector<PageLink>{{{1, 2, 30, 40}, Guide().bookmarks[0].target}});
      break;
    case 11:
      wire.Flag(true);
      break;
    default:
      break;
  }
  return wire.Take();
}

struct Bytes {
  const uint8_t* at;
  const uint8_t* end;
  unsigned Next() { return at < end ? *at++ : 0; }
  QByteArray Some(size_t most) {
    const size_t count = std::min(most, size_t(end - at));
    const QByteArray some(reinterpret_cast<const char*>(at), qsizetype(count));
    at += count;
    return some;
  }
};

void Say(int socket, const WireMessage& message) {
  const QByteArray bytes = HeadOf(message) + message.body;
  (void)!::write(socket, bytes.constData(), size_t(bytes.size()));
}

void Answer(int socket, int call, Bytes& bytes) {
  const unsigned how = bytes.Next();
  WireMessage message{WireKind::Answer, unsigned(call), Honest(call)};
  if (call == 7 && how < 128) Say(socket, {WireKind::Part, 7, "%PDF-1.4"});
  if (how % 8 == 7) {
    const QByteArray noise = bytes.Some(bytes.Next());
    (void)!::write(socket, noise.constData(), size_t(noise.size()));
  }
  if (how % 8 == 1) message.body = bytes.Some(bytes.Next());
  if (how % 8 == 2) message.call = bytes.Next() % 13;
  if (how % 8 == 3) message.kind = static_cast<WireKind>(bytes.Next() % 18);
  for (unsigned i = how % 8 == 4 || how % 8 == 5 ? bytes.Next() % 8 : 0; i > 0; --i) {
    if (message.body.isEmpty()) break;
    const auto place =
        qsizetype((bytes.Next() | bytes.Next() << 8) % unsigned(message.body.size()));
    message.body[place] = static_cast<char>(bytes.Next());
  }
  if (how % 8 == 6) message.body.truncate(qsizetype(bytes.Next()));
  Say(socket, message);
}

// One worker, which has said all it will ever say.
class OneLiar : public WorkerSource {
 public:
  OneLiar(const uint8_t* data, size_t size) : WorkerSource({}), bytes_{data, data + size} {}
  ~OneLiar() override {
    if (ends_[1] >= 0) ::close(ends_[1]);
  }
  std::unique_ptr<WorkerProcess> Take(const FileReader&, qint64) override {
    if (ends_[1] >= 0 || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends_) != 0)
      return {};
    for (int call = 1; call <= kCalls; ++call) Answer(ends_[1], call, bytes_);
    ::shutdown(ends_[1], SHUT_WR);
    return WorkerProcess::At(ends_[0]);
  }

 private:
  Bytes bytes_;
  int ends_[2] = {-1, -1};
};

void Expect(bool right) {
  if (!right) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto file = std::make_shared<test::MemoryReader>(QByteArray("%PDF-1.4\n%%EOF\n"));
  WorkerPlan plan(std::make_shared<OneLiar>(data, size),
                  std::make_shared<PlanSource>(file, file->Size()));
  const PlanContents contents = plan.Open({});
  Expect(contents.error != 0 || !contents.sizes.empty());
  for (const Mark& mark : contents.marks) Expect(size_t(mark.page) <= contents.sizes.size());
  CancelFlag cancel;
  if (const auto page = plan.LoadPage(1, cancel)) {
    std::vector<uint32_t> pixels(300 * 200);
    plan.Paint(*page, {1, 0, 0, 0, 300, 200, true}, cancel, pixels.data());
  }
  for (const TextPiece& text : plan.ReadContent(1, cancel).texts) {
    Expect(text.places.size() == size_t(text.text.size()));
  }
  const PlanUpdate update = plan.BuildUpdate({});
  Expect(update.error != 0 || IsAddition(update.bytes, file->Size()));
  plan.ForgetUpdate();
  QString problem;
  QByteArray written;
  const auto sink = [&written](const QByteArray& part) {
    written += part;
    return 0;
  };
  if (plan.WriteWhole(sink, problem) == 0) Expect(written.startsWith("%PDF"));
  for (const TextPiece& text : plan.ReadTexts(1, cancel).texts)
    Expect(text.places.size() == size_t(text.text.size()));
  const PlanGuide guide = plan.ReadGuide();
  for (const PlanBookmark& bookmark : guide.bookmarks)
    Expect(bookmark.depth <= kDeepestBookmark && bookmark.title.size() <= kLongestEntryTitle);
  for (const PageLink& link : plan.ReadLinks(1))
    Expect(link.target.kind != PlanTarget::Kind::Page || link.target.page > 0);
  plan.ShowLayers({true});
  return 0;
}
