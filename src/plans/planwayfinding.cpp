#include "plans/planwayfinding.h"

#include <utility>

namespace tamo {

PlanWayfinding::PlanWayfinding(const Kit& kit, OstControls& form, PdfDraw& viewer,
                               PlanRecord& record)
    : kit_(kit),
      form_(form),
      viewer_(viewer),
      jumps_(viewer, record),
      goTo_(kit, form, book_, jumps_),
      bookmarks_(kit, form, viewer, book_, jumps_),
      layers_(kit, form, viewer, book_),
      post_([this] { kit_.desk.Dispatch([this] { News(); }); }) {
  form_.AddText(QStringLiteral("SheetTitle"), &title_);
  const auto say = [this](const QString& words) { form_.ToolHint.SetCaption(words); };
  jumps_.say = say;
  layers_.say = say;
  book_.onNews = post_.Teller();
  viewer_.onPainting = [this](bool painting) { book_.Hold(painting); };
  viewer_.onPlainClick = [this](PagePoint at) {
    kit_.desk.Dispatch([&] { bookmarks_.FollowLinkAt(at); });
  };
  BindMenus();
}

void PlanWayfinding::BindMenus() {
  const std::pair<const char*, std::function<void()>> entries[] = {
      {"GoToSheet", [this] { goTo_.Open(); }},
      {"ShowBookmarks", [this] { bookmarks_.Toggle(); }},
      {"ShowLayers", [this] { layers_.Toggle(); }},
      {"JumpBack", [this] { jumps_.Back(); }},
      {"JumpForward", [this] { jumps_.Forward(); }}};
  for (const auto& [name, handler] : entries)
    form_.FindMenu(QLatin1String(name))->onClick = handler;
}

void PlanWayfinding::PageShown() {
  book_.Want(viewer_.OpenedPlan(), viewer_.PageCount(), viewer_.Page());
  toldPage_ = 0;
  jumps_.PageShown();
  bookmarks_.PageShown();
  News();
}

void PlanWayfinding::News(bool waited) {
  const bool news = book_.Take() || waited;
  const SheetTitle& title = book_.TitleOf(viewer_.Page());
  const QString words = (title.number + QLatin1Char(' ') + title.name).trimmed();
  if (words != title_) {
    title_ = words;
    form_.Changed();
  }
  if (book_.Of(viewer_.Page()).read && std::exchange(toldPage_, viewer_.Page()) != viewer_.Page()) {
    if (onSheetKnown) onSheetKnown();
  }
  if (!news) return;
  goTo_.BookNews();
  bookmarks_.BookNews();
  layers_.BookNews();
  if (onBookNews) onBookNews();
}

void PlanWayfinding::FinishReading(int milliseconds) {
  // What is done at the news may ask for more: layers that were switched.
  for (int round = 0; round < 2; ++round) {
    News(book_.Wait(milliseconds));
  }
}

}  // namespace tamo
