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

// The file that explains a form of the program ("Pricing", "RFSForm", ...); of a form without a
// topic of its own, that of the documentation itself.
QString FileOfForm(const QString& form);

}  // namespace tamo
