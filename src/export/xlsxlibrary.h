#pragma once

#include <xlsxwriter.h>

namespace tamo {

// The library that writes workbooks. It is loaded when the first one is written: most runs write
// none, and the start does not wait for it.
struct XlsxLibrary {
  decltype(&::workbook_new_opt) NewBook = nullptr;
  decltype(&::workbook_add_format) AddFormat = nullptr;
  decltype(&::workbook_add_worksheet) AddSheet = nullptr;
  decltype(&::workbook_close) CloseBook = nullptr;
  decltype(&::lxw_workbook_free) FreeBook = nullptr;
  decltype(&::format_set_bold) SetBold = nullptr;
  decltype(&::format_set_bottom) SetBottom = nullptr;
  decltype(&::format_set_text_wrap) SetWrap = nullptr;
  decltype(&::format_set_num_format) SetNumbers = nullptr;
  decltype(&::worksheet_set_column) SetColumn = nullptr;
  decltype(&::worksheet_freeze_panes) Freeze = nullptr;
  decltype(&::worksheet_repeat_rows) RepeatRows = nullptr;
  decltype(&::worksheet_set_landscape) SetLandscape = nullptr;
  decltype(&::worksheet_fit_to_pages) FitToPages = nullptr;
  decltype(&::worksheet_set_footer) SetFooter = nullptr;
  decltype(&::worksheet_autofilter) Filter = nullptr;
  decltype(&::worksheet_write_string) WriteString = nullptr;
  decltype(&::worksheet_write_number) WriteNumber = nullptr;

  // nullptr when it is not installed.
  static const XlsxLibrary* Get();
};

}  // namespace tamo
