#pragma once

#include <QString>
#include <span>

namespace tamo {

// One row of the topic list and the file that holds its text. Indented rows are subtopics; two rows
// share a file.
struct Topic {
  const char* row;
  const char* file;
};

std::span<const Topic> Topics();

// The file of the first row with that text, "" when there is none.
QString FileOfTopic(const QString& row);

// The file that explains a field of a form ("Pricing", "Material"); that of its form where the
// field has none of its own, and that of the documentation itself where the form has none.
QString FileOfField(const QString& form, const QString& field);
// The same for a report, by the title in its first line.
QString FileOfReport(const QString& title);

}  // namespace tamo
