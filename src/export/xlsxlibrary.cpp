#include "export/xlsxlibrary.h"

#include <QLibrary>

namespace tamo {
namespace {

constexpr int kVersion = 4;  // of its interface, as the headers have it

template <class Function>
bool Find(QLibrary& library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(library.resolve(name));
  return function != nullptr;
}

bool Load(XlsxLibrary& all) {
  QLibrary library(QStringLiteral("xlsxwriter"), kVersion);
  return library.load() && Find(library, "workbook_new_opt", all.NewBook) &&
         Find(library, "workbook_add_format", all.AddFormat) &&
         Find(library, "workbook_add_worksheet", all.AddSheet) &&
         Find(library, "workbook_close", all.CloseBook) &&
         Find(library, "lxw_workbook_free", all.FreeBook) &&
         Find(library, "format_set_bold", all.SetBold) &&
         Find(library, "format_set_bottom", all.SetBottom) &&
         Find(library, "format_set_text_wrap", all.SetWrap) &&
         Find(library, "format_set_num_format", all.SetNumbers) &&
         Find(library, "worksheet_set_column", all.SetColumn) &&
         Find(library, "worksheet_freeze_panes", all.Freeze) &&
         Find(library, "worksheet_repeat_rows", all.RepeatRows) &&
         Find(library, "worksheet_set_landscape", all.SetLandscape) &&
         Find(library, "worksheet_fit_to_pages", all.FitToPages) &&
         Find(library, "worksheet_set_footer", all.SetFooter) &&
         Find(library, "worksheet_autofilter", all.Filter) &&
         Find(library, "worksheet_write_string", all.WriteString) &&
         Find(library, "worksheet_write_number", all.WriteNumber);
}

}  // namespace

const XlsxLibrary* XlsxLibrary::Get() {
  static XlsxLibrary all;
  static const bool whole = Load(all);
  return whole ? &all : nullptr;
}

}  // namespace tamo
