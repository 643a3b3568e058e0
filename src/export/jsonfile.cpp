#include "export/jsonfile.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr qsizetype kPiece = 1 << 16;

QByteArray Quoted(QStringView text) {
  const QByteArray bytes = text.toUtf8();
  const bool plain = std::none_of(bytes.begin(), bytes.end(), [](char c) {
    return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20;
  });
  if (plain) return '"' + bytes + '"';
  QByteArray quoted = "\"";
  for (const char c : bytes) {
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += c;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      quoted += "\\u00" + QByteArray::number(static_cast<int>(c), 16).rightJustified(2, '0');
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

const char* TypeOf(ColumnKind kind) {
  switch (kind) {
    case ColumnKind::Text:
      return "text";
    case ColumnKind::Number:
      return "number";
    case ColumnKind::Money:
      return "money";
    case ColumnKind::Percent:
      return "percent";
  }
  return "text";
}

}  // namespace

JsonFile::JsonFile(ByteSink& sink, const QList<std::pair<QString, QString>>& head) : sink_(sink) {
  waiting_ = "{\n";
  for (const auto& [name, text] : head)
    waiting_ += "  " + Quoted(name) + ": " + Quoted(text) + ",\n";
}

void JsonFile::Begin(const std::vector<TableColumn>& columns) {
  waiting_ += "  \"columns\": [";
  for (const TableColumn& column : columns) {
    if (!names_.empty()) waiting_ += ", ";
    names_.push_back(Quoted(column.name));
    waiting_ += "{\"name\": " + names_.back() + ", \"type\": \"" + TypeOf(column.kind) + "\"}";
  }
  waiting_ += "],\n  \"rows\": [";
}

void JsonFile::Row(std::span<const TableCell> cells, RowWeight) {
  waiting_ += rows_ ? ",\n    {" : "\n    {";
  rows_ = true;
  bool first = true;
  for (size_t i = 0; i < std::min(cells.size(), names_.size()); ++i) {
    if (cells[i].GetKind() == TableCell::Kind::Nothing) continue;
    if (!first) waiting_ += ", ";
    first = false;
    waiting_ += names_[i] + ": ";
    waiting_ += cells[i].GetKind() == TableCell::Kind::Number ? PlainNumber(cells[i].Number())
                                                              : Quoted(cells[i].Text());
  }
  waiting_ += '}';
  Flush(kPiece);
}

int JsonFile::Finish() {
  waiting_ += rows_ ? "\n  ],\n  \"remarks\": [" : "],\n  \"remarks\": [";
  for (qsizetype i = 0; i < remarks_.size(); ++i)
    waiting_ += (i > 0 ? ",\n    " : "\n    ") + Quoted(remarks_[i]);
  waiting_ += remarks_.isEmpty() ? "]\n}\n" : "\n  ]\n}\n";
  Flush(0);
  return error_;
}

void JsonFile::Flush(qsizetype least) {
  if (waiting_.size() < least) return;
  if (error_ == 0) error_ = sink_.Write(waiting_);
  waiting_.clear();
}

}  // namespace tamo
