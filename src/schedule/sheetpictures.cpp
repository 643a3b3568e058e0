#include "schedule/sheetpictures.h"

#include <algorithm>

#include "schedule/pictureword.h"
#include "schedule/sheetdrawing.h"

namespace tamo {

QString SheetPictures::ReadInto(PageContent& page, const SheetToRead& sheet,
                                CancelFlag& stop) const {
  const PageBox area = sheet.box.value_or(PageBox{0, 0, page.size.width, page.size.height});
  GreyPicture picture;
  QString problem = PaintGrey(*sheet.plan, sheet.page, area, stop, picture);
  if (!problem.isEmpty()) return problem;
  const PictureText read = program_.Read(picture, sheet.box.has_value(), stop.Value());
  if (!read.problem.isEmpty()) return read.problem;
  std::vector<TextPiece> pieces =
      PiecesOf(PictureWordsOf(read.table, picture.width, picture.height), picture.corner,
               picture.PixelsPerPoint());
  if (pieces.empty()) {
    return QStringLiteral(
        "No word was found in the picture of the sheet. Type the schedule, or ask for the drawing "
        "as the architect's program wrote it.");
  }
  page.texts.erase(std::remove_if(page.texts.begin(), page.texts.end(),
                                  [&area](const TextPiece& piece) {
                                    return piece.hidden || !piece.box.Cut(area).Empty();
                                  }),
                   page.texts.end());
  std::move(pieces.begin(), pieces.end(), std::back_inserter(page.texts));
  return {};
}

void MarkAllUnsure(std::vector<ScheduleTable>& tables) {
  for (ScheduleTable& table : tables) {
    for (ScheduleRow& row : table.rows) {
      for (ScheduleCell& cell : row.cells) cell.Add(Doubt::FromPicture);
    }
  }
}

SheetRead ReadOrOffer(SheetToRead sheet, const std::shared_ptr<const SheetPictures>& pictures,
                      const std::function<bool(const QString& question)>& ask,
                      const std::function<bool(int done, int all)>& progress) {
  SheetRead read = ReadAside(sheet, progress);
  if (!read.picture || pictures == nullptr || !pictures->Ready()) return read;
  const bool yes = ask(QStringLiteral(
      "This is a scanned picture: it has no text that can be trusted. The program tesseract on "
      "this computer can read the picture. That takes up to a minute, Escape stops it, and every "
      "cell is marked as not sure: compare each with the sheet.\rRead the picture?"));
  if (!yes) return read;
  sheet.pictures = pictures;
  return ReadAside(std::move(sheet), progress);
}

}  // namespace tamo
