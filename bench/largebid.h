#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace tamo::bench {

// A project as the benchmarks need it: so many rooms of 20 lines each, 150 systems of so many
// materials, an item and an adjustment; the same for the same numbers.

inline constexpr int kSystems = 150;
inline constexpr int kLinesOfRoom = 20;

inline void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

inline std::string SystemName(int number) {
  return "System " + std::to_string(number);
}

// As takeoffs have them: a few feet to a few thousand, some with a fraction; hardly one twice.
inline std::string Quantity(unsigned n) {
  static const char* const fractions[] = {"", "", "", ".5", ".25"};
  return std::to_string(8 + n % 2400) + fractions[n / 2400 % 5];
}

inline void WriteSystem(const std::filesystem::path& systems, int number, int materials) {
  std::ofstream file(systems / (SystemName(number) + ".sys"), std::ios::binary);
  file << SystemName(number) << "\r\nSF\r\n0.00\r\n255000000\r\n\r\n\x01\r\n\r\n\r\n";
  for (int m = 0; m < materials; ++m) {
    file << "Material " << number % 40 << "-" << m << "\r\nBX\r\n"
         << 12 + m << ".50\r\n32\r\nupo\r\n45\r\nupm\r\n5\r\n41.50\r\n\r\n\r\n\r\n";
  }
}

inline void WriteRoom(const std::filesystem::path& path, std::mt19937& dice) {
  std::string text = "9\r\n";
  char line[80];
  for (int l = 0; l < kLinesOfRoom; ++l) {
    const std::string system = SystemName(static_cast<int>(dice() % kSystems));
    std::snprintf(line, sizeof line, "%-21s%-11s%14s SF\r\n", system.c_str(), "WALLS",
                  Quantity(static_cast<unsigned>(dice() % 100000)).c_str());
    text += line;
  }
  WriteFile(path, text);
}

inline void WriteProject(const std::filesystem::path& folder, int rooms, int materials) {
  namespace fs = std::filesystem;
  for (const char* part : {"Rooms", "Systems", "ATOs"}) fs::create_directories(folder / part);
  for (int s = 0; s < kSystems; ++s) WriteSystem(folder / "Systems", s, materials);
  std::mt19937 dice(1);
  std::string list;
  for (int r = 0; r < rooms; ++r) {
    const std::string name = "Room " + std::to_string(r);
    list += name + "\r\nTrue\r\n";
    WriteRoom(folder / "Rooms" / (name + ".rfs"), dice);
  }
  WriteFile(folder / "Rooms/Rooms.tamo", list);
  WriteFile(folder / "oItems.tamo", "Mobilization           1850.00\r\n");
  WriteFile(folder / "Adjustment.tamo", "-1250\r\n");
}

// A data folder with one such project, "Large".
inline void WriteDataFolder(const std::filesystem::path& data, int rooms, int materials) {
  const std::filesystem::path project = data / "Projects/07-2611001";
  WriteProject(project, rooms, materials);
  WriteFile(data / "Jobs.lst", "07-2611001   Large\r\n");
  WriteFile(project / "JobNFO.tamo",
            "07-2611001\r\nLarge\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

}  // namespace tamo::bench
