#include "plans/planbookmarks.h"

#include "plans/sheetfinder.h"

namespace tamo {
namespace {

void OnRow(OrderedList& list, const std::function<void()>& go, const std::function<void()>& close) {
  list.onClick = go;
  list.onKey = [go, close](Key& key) {
    if (key.IsEnter()) {
      key.Drop();
      go();
    } else if (key.Is(Key::Name::Escape)) {
      key.Drop();
      close();
    }
  };
}

}  // namespace

PlanBookmarks::PlanBookmarks(const Kit& kit, OstControls& form, PdfDraw& viewer, SheetBook& book,
                             PlanJumps& jumps)
    : kit_(kit), form_(form), viewer_(viewer), book_(book), jumps_(jumps) {
  for (Control* control :
       std::initializer_list<Control*>{&form_.BookmarkWords, &form_.BookmarkList, &form_.LinkList})
    control->PutInto(form_.BookmarkFrame);
  form_.BookmarkFrame.SetCaption(QStringLiteral("Bookmarks and links"));
  form_.BookmarkFrame.Hide();
  OnRow(
      form_.BookmarkList, [this] { GoToBookmark(); }, [this] { Close(); });
  OnRow(
      form_.LinkList, [this] { GoToLink(); }, [this] { Close(); });
}

void PlanBookmarks::Toggle() {
  if (form_.BookmarkFrame.Shown()) return Close();
  form_.Frame1.Hide();
  form_.GoToFrame.Hide();
  form_.LayerFrame.Hide();
  form_.BookmarkFrame.Show();
  Fill();
  OrderedList& list = form_.BookmarkList.Empty() ? form_.LinkList : form_.BookmarkList;
  if (!list.Empty()) list.SetIndex(0);
  kit_.desk.Focus(list);
}

void PlanBookmarks::Close() {
  form_.BookmarkFrame.Hide();
  kit_.desk.Focus(form_.picPdfDraw);
}

QString PlanBookmarks::TargetInWords(const PlanTarget& target) const {
  if (target.kind == PlanTarget::Kind::Page) return SheetInWords(book_, target.page);
  if (target.outside.isEmpty()) return QStringLiteral("Not opened from here");
  return QStringLiteral("Not opened from here: ") + target.outside;
}

void PlanBookmarks::BookNews() {
  if (form_.BookmarkFrame.Shown()) Fill();
}

void PlanBookmarks::PageShown() {
  book_.LinksOf(viewer_.Page());
  if (form_.BookmarkFrame.Shown()) FillLinks();
}

QString PlanBookmarks::Words() const {
  if (book_.Sheets() == 0) return QStringLiteral("No plan is open.");
  if (!book_.Guided()) return QStringLiteral("The bookmarks are being read.");
  const PlanGuide& guide = book_.Guide();
  if (!guide.problem.isEmpty()) return QStringLiteral("Of this plan %1.").arg(guide.problem);
  if (guide.bookmarks.empty()) return QStringLiteral("This plan has no bookmarks.");
  return QStringLiteral("Enter goes to the place, Alt+Left comes back.");
}

void PlanBookmarks::Fill() {
  QStringList rows;
  for (const PlanBookmark& bookmark : book_.Guide().bookmarks) {
    const QString title =
        bookmark.title.isEmpty() ? QStringLiteral("(without a name)") : bookmark.title;
    const bool inside = bookmark.target.kind == PlanTarget::Kind::Page;
    rows += QString(2 * bookmark.depth, QLatin1Char(' ')) + title +
            (inside ? QStringLiteral("  (page %1)").arg(bookmark.target.page) : QString());
  }
  form_.BookmarkList.Refill(rows);
  form_.BookmarkWords.SetCaption(Words());
  FillLinks();
}

void PlanBookmarks::FillLinks() {
  QStringList rows;
  if (const std::vector<PageLink>* links = book_.LinksOf(viewer_.Page())) {
    for (const PageLink& link : *links) rows += TargetInWords(link.target);
  }
  form_.LinkList.Refill(rows);
}

void PlanBookmarks::GoToBookmark() {
  const int row = form_.BookmarkList.Index();
  const std::vector<PlanBookmark>& bookmarks = book_.Guide().bookmarks;
  if (row < 0 || size_t(row) >= bookmarks.size()) return;
  const PlanTarget target = bookmarks[size_t(row)].target;
  // A bookmark that only heads those under it.
  const bool heads = size_t(row) + 1 < bookmarks.size() && target.kind == PlanTarget::Kind::None &&
                     bookmarks[size_t(row) + 1].depth > bookmarks[size_t(row)].depth;
  if (!heads) jumps_.Follow(target);
}

void PlanBookmarks::GoToLink() {
  const int row = form_.LinkList.Index();
  const std::vector<PageLink>* links = book_.LinksOf(viewer_.Page());
  if (links == nullptr || row < 0 || size_t(row) >= links->size()) return;
  const PlanTarget target = (*links)[size_t(row)].target;
  jumps_.Follow(target);
}

// The one on top is the one drawn last.
const PageLink* PlanBookmarks::LinkAt(PagePoint at) {
  const std::vector<PageLink>* links = book_.LinksOf(viewer_.Page());
  if (links == nullptr) return nullptr;
  for (auto link = links->rbegin(); link != links->rend(); ++link) {
    const PageBox& box = link->box;
    if (at.x >= box.left && at.x <= box.right && at.y >= box.top && at.y <= box.bottom)
      return &*link;
  }
  return nullptr;
}

bool PlanBookmarks::FollowLinkAt(PagePoint at) {
  const PageLink* link = LinkAt(at);
  if (link == nullptr) return false;
  const PlanTarget target = link->target;
  jumps_.Follow(target);
  return true;
}

}  // namespace tamo
