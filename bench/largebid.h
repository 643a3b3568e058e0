#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace tamo::bench {

// Writes a data folder with one project, "Large", of so many rooms of 20 lines and 150 systems of
// two materials; the same for the same number.
inline void WriteSystemFile(const std::filesystem::path& systems, int number) {
  const std::string name = "System " + std::to_string(number);
  std::ofstream file(systems / (name + ".sys"), std::ios::binary);
  file << name << "\r\nSF\r\n0.00\r\n255000000\r\n\r\n\x01\r\n\r\n\r\n";
  for (int m = 0; m < 2; ++m) {
    file << "Material " << number % 40 << "-" << m << "\r\nBX\r\n"
         << 12 + m << ".50\r\n32\r\nupo\r\n45\r\nupm\r\n5\r\n41.50\r\n\r\n\r\n\r\n";
  }
}

inline void WriteLargeBid(const std::filesystem::path& data, int rooms) {
  namespace fs = std::filesystem;
  const fs::path project = data / "Projects/07-2611001";
  for (const char* part : {"Rooms", "Systems", "ATOs"}) fs::create_directories(project / part);
  std::ofstream(data / "Jobs.lst", std::ios::binary) << "07-2611001   Large\r\n";
  std::ofstream(project / "JobNFO.tamo", std::ios::binary)
      << "07-2611001\r\nLarge\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
  for (int s = 0; s < 150; ++s) WriteSystemFile(project / "Systems", s);
  std::mt19937 dice(1);
  std::ofstream list(project / "Rooms/Rooms.tamo", std::ios::binary);
  for (int r = 0; r < rooms; ++r) {
    list << "Room " << r << "\r\nTrue\r\n";
    std::ofstream room(project / ("Rooms/Room " + std::to_string(r) + ".rfs"), std::ios::binary);
    room << "9\r\n";
    char line[80];
    for (int l = 0; l < 20; ++l) {
      std::snprintf(line, sizeof line, "%-21s%-11s%14.2f SF\r\n",
                    ("System " + std::to_string(dice() % 150)).c_str(), "WALLS",
                    8 + dice() % 240000 / 100.0);
      room << line;
    }
  }
}

}  // namespace tamo::bench
