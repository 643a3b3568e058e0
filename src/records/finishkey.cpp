#include "records/finishkey.h"

#include <algorithm>

namespace tamo {
namespace {

template <class Key>
auto Find(Key& key, const QString& code) {
  return std::find_if(key.begin(), key.end(), [&code](const FinishChoice& choice) {
    return choice.code.compare(code, Qt::CaseInsensitive) == 0;
  });
}

int ReadKey(Files& files, const QString& path, FinishKey& key) {
  QStringList lines;
  const int error = files.ReadLines(path, lines);
  key.clear();
  for (qsizetype i = 0; i < lines.size(); i += 2) key.push_back({lines[i], lines.value(i + 1)});
  return error;
}

int WriteKey(Files& files, const QString& path, const FinishKey& key) {
  QStringList lines;
  for (const FinishChoice& choice : key) lines << choice.code << choice.system;
  return files.SaveLines(path, lines);
}

}  // namespace

QString SystemOfCode(const FinishKey& key, const QString& code) {
  const auto found = Find(key, code);
  return found == key.end() ? QString() : found->system;
}

bool InFinishKey(const FinishKey& key, const QString& code) {
  return Find(key, code) != key.end();
}

void SetSystemOfCode(FinishKey& key, const QString& code, const QString& system) {
  const auto found = Find(key, code);
  if (found == key.end()) {
    key.push_back({code, system});
  } else {
    found->system = system;
  }
}

int ReadFinishKey(Files& files, const ProjectFolder& project, FinishKey& key) {
  return ReadKey(files, project.FinishKey(), key);
}

int WriteFinishKey(Files& files, const ProjectFolder& project, const FinishKey& key) {
  return WriteKey(files, project.FinishKey(), key);
}

int ReadFinishKey(Files& files, const DataFolder& data, FinishKey& key) {
  return ReadKey(files, data.FinishKey(), key);
}

int WriteFinishKey(Files& files, const DataFolder& data, const FinishKey& key) {
  return WriteKey(files, data.FinishKey(), key);
}

}  // namespace tamo
