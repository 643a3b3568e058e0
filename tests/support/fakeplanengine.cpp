#include "support/fakeplanengine.h"

#include <algorithm>

namespace tamo::test {
namespace {

constexpr char kMark[] = "%Mark ";
constexpr char kGone[] = "%Gone ";
constexpr QChar kBar = QLatin1Char('|');

QString LineOf(const Mark& mark) {
  QStringList parts = {mark.name, QString::number(static_cast<int>(mark.kind)),
                       QString::number(mark.page), mark.colour, QString::number(mark.width)};
  for (const PagePoint at : mark.points) {
    parts << QString::number(at.x, 'g', 15) << QString::number(at.y, 'g', 15);
  }
  return parts.join(kBar) + kBar + mark.label;
}

Mark MarkOf(const QString& line) {
  QStringList parts = line.split(kBar);
  Mark mark;
  mark.label = parts.takeLast();
  mark.name = parts[0];
  mark.kind = static_cast<Mark::Kind>(parts[1].toInt());
  mark.page = parts[2].toInt();
  mark.colour = parts[3];
  mark.width = parts[4].toDouble();
  for (qsizetype i = 5; i + 1 < parts.size(); i += 2)
    mark.points.push_back({parts[i].toDouble(), parts[i + 1].toDouble()});
  return mark;
}

struct WhitePage : LoadedPage {
  explicit WhitePage(PageSize given) : size(given) {}
  PageSize Size() const override { return size; }
  PageSize size;
};

class FakePlan : public EnginePlan {
 public:
  FakePlan(FakePlanEngine& engine, std::shared_ptr<PlanSource> source)
      : engine_(engine), source_(std::move(source)) {}

  PlanContents Open(const QString& /*password*/) override {
    engine_.calls << QStringLiteral("open");
    PlanContents contents;
    contents.error = engine_.openError;
    if (contents.error != 0) {
      contents.problem = QStringLiteral("the test wants it so");
      return contents;
    }
    contents.sizes.assign(static_cast<size_t>(std::max(1, engine_.pages)), engine_.size);
    QByteArray bytes(static_cast<qsizetype>(source_->Size()), '\0');
    qint64 got = 0;
    source_->Reader()->ReadAt(0, bytes.data(), bytes.size(), got);
    for (const QByteArray& line : bytes.split('\n')) {
      if (line.startsWith(kMark))
        contents.marks.push_back(MarkOf(QString::fromUtf8(line.mid(sizeof kMark - 1))));
      const QString gone = QString::fromUtf8(line.mid(sizeof kGone - 1));
      if (line.startsWith(kGone))
        std::erase_if(contents.marks, [&](const Mark& mark) { return mark.name == gone; });
    }
    return contents;
  }

  std::shared_ptr<LoadedPage> LoadPage(int /*page*/, CancelFlag& /*cancel*/) override {
    return std::make_shared<WhitePage>(engine_.size);
  }
  bool Paint(const LoadedPage& /*page*/, const PaintPart& part, CancelFlag& /*cancel*/,
             uint32_t* pixels) override {
    std::fill_n(pixels, static_cast<size_t>(part.width) * static_cast<size_t>(part.height),
                0xffffffffU);
    return true;
  }
  PageContent ReadContent(int page, CancelFlag& /*cancel*/) override {
    PageContent content;
    content.size = engine_.size;
    content.whole = true;
    const auto index = static_cast<size_t>(page - 1);
    if (index < engine_.words.size() && !engine_.words[index].isEmpty()) {
      TextPiece piece;
      piece.text = engine_.words[index];
      piece.size = 10;
      piece.box = {100, 90, 200, 100};
      piece.places = {{{100, 100}, {200, 100}, piece.box}};
      content.texts = {piece};
    }
    return content;
  }

  PlanUpdate BuildUpdate(const MarkChanges& changes) override {
    engine_.calls << QStringLiteral("update");
    PlanUpdate update;
    update.error = engine_.updateError;
    if (update.error != 0) return update;
    for (const Mark& mark : changes.added)
      update.bytes += '\n' + (QLatin1String(kMark) + LineOf(mark)).toUtf8();
    for (const QString& name : changes.removed)
      update.bytes += '\n' + (QLatin1String(kGone) + name).toUtf8();
    update.bytes += '\n';
    return update;
  }
  void ForgetUpdate() override {}
  int WriteWhole(const Sink& sink, QString& /*problem*/) override { return sink("%PDF-1.4\n"); }
  void Abandon() override {}

 private:
  FakePlanEngine& engine_;
  std::shared_ptr<PlanSource> source_;
};

}  // namespace

std::shared_ptr<EnginePlan> FakePlanEngine::NewPlan(std::shared_ptr<PlanSource> source) {
  return std::make_shared<FakePlan>(*this, std::move(source));
}

}  // namespace tamo::test
