#pragma once

#include <QString>

namespace tamo {

// The fields of the project panel that the project information report shows.
struct ProjectFacts {
  QString JobName, BidDate, Phase, Addenda, Inclusions, Exclusions, Architect;
  QString Notes;  // several lines
};

// What the reports need of the form that keeps the project's record.
class ProjectRecord {
 public:
  virtual ~ProjectRecord() = default;
  virtual void LoadJobNFO() = 0;  // the record from its file into the fields
  virtual ProjectFacts Facts() const = 0;
};

}  // namespace tamo
